#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringMatcher>

namespace tamble::client {

/// Looks for a pattern in texts, of which it may match any part. Of ill-formed patterns it keeps the one before.
class RowMatcher
{
public:
    enum class Syntax { Fixed, Wildcard, Expression };

    /// False when the pattern is ill-formed.
    bool setPattern(const QString &pattern, Syntax syntax);
    void setCaseSensitivity(Qt::CaseSensitivity sensitivity);

    /// Whether every text matches, since there is no pattern.
    bool isOpen() const { return m_pattern.isEmpty(); }
    bool matches(const QString &text) const;

private:
    QRegularExpression expressionFor(const QString &pattern, Syntax syntax) const;
    void accept();

    QString m_pattern;
    Syntax m_syntax = Syntax::Fixed;
    Qt::CaseSensitivity m_sensitivity = Qt::CaseInsensitive;
    QStringMatcher m_fixed;
    QRegularExpression m_expression;
};

/// `*` for any characters, `?` for one, and sets such as `[a-f]` and `[!0-9]`.
QString expressionOfWildcard(const QString &wildcard);

} // namespace tamble::client
