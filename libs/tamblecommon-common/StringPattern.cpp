#include "StringPattern.h"

namespace tamble::common {

namespace {

// Ends the search of patterns such as "(a+)+b", whose time otherwise doubles with each character of the text. Far above
// what patterns for names and addresses need.
constexpr int matchLimit = 100'000;

QRegularExpression anchored(const QString &pattern)
{
    return QRegularExpression(QStringLiteral("(*LIMIT_MATCH=%1)\\A(?:").arg(matchLimit) + pattern +
                              QStringLiteral(")\\z"));
}

} // namespace

StringPattern::StringPattern(const QString &pattern)
    : m_pattern(pattern)
{
    if (pattern.isEmpty())
        return;

    // Checked alone first: "a)(b" is no pattern, but the group around it would make it one.
    const QRegularExpression alone(pattern);
    m_wholeText = alone.isValid() ? anchored(pattern) : alone;
    if (!m_wholeText.isValid())
        m_errorText = m_wholeText.errorString();
}

StringVerdict StringPattern::match(const QString &text) const
{
    if (m_pattern.isEmpty() || !isWellFormed())
        return {};

    const QRegularExpressionMatch match = m_wholeText.match(text, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (match.hasMatch())
        return {};
    const bool undecided = !match.isValid();
    if (match.hasPartialMatch() || undecided || text.isEmpty())
        return {StringState::Intermediate, StringFault::PatternIncomplete};
    return {StringState::Invalid, StringFault::PatternMismatch};
}

} // namespace tamble::common
