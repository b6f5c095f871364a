#pragma once

#include <QtCore/QString>
#include <QtGui/QValidator>

namespace tamble::client {

// What may be typed into a field. A check is Invalid only when no further typing can make the text right; blanks around
// a text, and numbers out of range, are Intermediate. Only ASCII digits count, whatever the locale; the minus may be
// "-" or U+2212.

/// A decimal number with at most `decimals` fraction digits (any number when negative) and 15 digits in all.
///
/// Point and comma separate alike. A bound that is not a number is open; a bottom above the top accepts nothing.
QValidator::State checkDecimal(const QString &text, double bottom, double top, int decimals);

/// A whole number of at most 10 digits.
QValidator::State checkInteger(const QString &text, int bottom, int top);

/// Four numbers from 0 to 255 without leading zeros, joined by dots.
QValidator::State checkIpAddress(const QString &text);

/// Digits only, their number within the bounds.
QValidator::State checkDigits(const QString &text, int minimumLength, int maximumLength);

/// Whether all digits are the same, or each is one more, or each one less, than the one before.
bool isTrivialPin(const QString &digits);

/// The same decimal number without outer blanks, trailing separator and leading zeros, with a point and with "-".
QString tidyDecimal(const QString &text);

/// The same whole number without outer blanks and leading zeros, and with "-".
QString tidyInteger(const QString &text);

} // namespace tamble::client
