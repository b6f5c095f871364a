#include "models/RowMatcher.h"

namespace tamble::client {

bool RowMatcher::setPattern(const QString &pattern, Syntax syntax)
{
    if (syntax != Syntax::Fixed && !expressionFor(pattern, syntax).isValid())
        return false;
    m_pattern = pattern;
    m_syntax = syntax;
    accept();
    return true;
}

void RowMatcher::setCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    m_sensitivity = sensitivity;
    accept();
}

bool RowMatcher::matches(const QString &text) const
{
    return m_syntax == Syntax::Fixed ? m_fixed.indexIn(text) >= 0 : m_expression.match(text).hasMatch();
}

QRegularExpression RowMatcher::expressionFor(const QString &pattern, Syntax syntax) const
{
    QRegularExpression::PatternOptions options;
    options.setFlag(QRegularExpression::CaseInsensitiveOption, m_sensitivity == Qt::CaseInsensitive);
    // A star also stands for the ends of lines.
    options.setFlag(QRegularExpression::DotMatchesEverythingOption, syntax == Syntax::Wildcard);
    return QRegularExpression(syntax == Syntax::Wildcard ? expressionOfWildcard(pattern) : pattern, options);
}

void RowMatcher::accept()
{
    m_fixed = QStringMatcher(m_pattern, m_sensitivity);
    m_expression = m_syntax == Syntax::Fixed ? QRegularExpression() : expressionFor(m_pattern, m_syntax);
}

// Qt's own conversion takes the pattern for one of file paths, where a star ends at a slash.
QString expressionOfWildcard(const QString &wildcard)
{
    QString result;
    for (qsizetype i = 0; i < wildcard.size(); ++i) {
        const QChar character = wildcard.at(i);
        if (character == u'*') {
            result += QStringLiteral(".*");
        } else if (character == u'?') {
            result += u'.';
        } else if (character == u'[') {
            result += u'[';
            if (i + 1 < wildcard.size() && wildcard.at(i + 1) == u'!') {
                result += u'^';
                ++i;
            }
            // A bracket that comes first belongs to the set.
            const qsizetype end = wildcard.indexOf(u']', i + 2);
            if (end < 0)
                return result; // without its end, which no expression may lack
            result += wildcard.mid(i + 1, end - i).replace(u'\\', QStringLiteral("\\\\"));
            i = end;
        } else {
            result += QRegularExpression::escape(QString(character));
        }
    }
    return result;
}

} // namespace tamble::client
