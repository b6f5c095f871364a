#include "cells/TabSeparated.h"

#include <QtCore/QRegularExpression>

namespace tamble::client {

QString toTabSeparated(const QList<QStringList> &rows)
{
    static const QRegularExpression special(QStringLiteral("[\t\r\n\"]"));
    QStringList lines;
    for (const QStringList &row : rows) {
        QStringList texts;
        for (QString text : row) {
            if (text.contains(special))
                text = u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
            texts.append(text);
        }
        lines.append(texts.join(u'\t'));
    }
    return lines.join(u'\n');
}

QList<QStringList> fromTabSeparated(const QString &text)
{
    // A text in marks or any other, and what ends it: a tab, a line break or the end of all.
    static const QRegularExpression item(
        QStringLiteral("\\G(?:\"([^\"]*+(?:\"\"[^\"]*+)*+)\"|([^\t\r\n]*+))(\t|\r\n|\r|\n|\\z)"));
    QList<QStringList> rows;
    bool startsRow = true;
    for (qsizetype at = 0; at < text.size() || !startsRow;) {
        const auto match = item.match(text, at);
        if (startsRow)
            rows.append(QStringList());
        rows.last().append(match.hasCaptured(1)
                               ? match.captured(1).replace(QStringLiteral("\"\""), QStringLiteral("\""))
                               : match.captured(2));
        at = match.capturedEnd(0);
        startsRow = match.captured(3) != u"\t";
    }
    return rows;
}

} // namespace tamble::client
