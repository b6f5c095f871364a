#pragma once

#include "StringVerdict.h"
#include "TambleCommonCommonExport.h"

#include <QRegularExpression>
#include <QString>

namespace tamble::common {

/// A regular expression that a text has to match as a whole, compiled once.
///
/// An empty pattern restricts nothing. Neither does an ill-formed one: a field must stay usable when its page is wrong.
class TAMBLE_COMMON_COMMON_EXPORT StringPattern
{
public:
    /// The empty pattern.
    StringPattern() = default;

    /// Compiles `pattern`, in the syntax of QRegularExpression, with case mattering.
    explicit StringPattern(const QString &pattern);

    /// The text given to the constructor.
    QString pattern() const { return m_pattern; }

    /// False when the pattern could not be compiled.
    bool isWellFormed() const { return m_errorText.isEmpty(); }

    /// What is wrong with an ill-formed pattern; empty for a well-formed one.
    QString errorText() const { return m_errorText; }

    /// Compares all of `text` with the pattern.
    ///
    /// Intermediate when something appended to the text could complete the match, when the text is empty, and when a
    /// pattern that backtracks without end was given up. A text that only typing before its end could save is invalid.
    StringVerdict match(const QString &text) const;

    friend bool operator==(const StringPattern &left, const StringPattern &right)
    {
        return left.m_pattern == right.m_pattern;
    }

private:
    QString m_pattern;
    QString m_errorText;
    QRegularExpression m_wholeText;
};

} // namespace tamble::common
