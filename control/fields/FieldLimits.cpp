#include "fields/FieldLimits.h"

#include <QtCore/QTextBoundaryFinder>

#include <algorithm>

namespace tamble::client {

namespace {

/// Where the last character before a position begins; a character may be several code points.
int characterBefore(const QString &text, int position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(position);
    return std::max(0, int(finder.toPreviousBoundary()));
}

} // namespace

QString FieldLimits::problemOf(const QString &text) const
{
    if (text.isEmpty() && isRequired)
        return tr("This must be filled in");
    if (maximumBytes > 0 && text.toUtf8().size() > maximumBytes)
        return tr("At most %n bytes", nullptr, maximumBytes);
    if (maximumLines > 0 && text.count(u'\n') >= maximumLines)
        return tr("At most %n lines", nullptr, maximumLines);
    return {};
}

int FieldLimits::endWithinBytes(const QString &text, const QString &before, int caret) const
{
    if (maximumBytes <= 0)
        return caret;
    const auto begin = std::ranges::mismatch(text, before).in1 - text.begin();
    int end = caret;
    qsizetype bytes = text.toUtf8().size();
    while (bytes > maximumBytes && end > begin) {
        const int character = characterBefore(text, end);
        bytes -= text.mid(character, end - character).toUtf8().size();
        end = character;
    }
    return end;
}

} // namespace tamble::client
