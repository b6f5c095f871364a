#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Numbers as decimal text, the same in every locale: ASCII digits, no groups, "." as the point.
///
/// Rounding is that of a person with a pencil: the number is read as a decimal first, then rounded half away from zero.
/// So 0.05 gives "0.1" with one decimal, although the nearest double lies elsewhere. Below 1e15 the number is read with
/// 15 significant digits, which drops what scaling leaves behind (0.145 * 100 reads as 14.5); above, with 17.
namespace tamble::client {

/// `magnitude` with exactly `decimals` digits after the point. Both are at least 0, and `magnitude` is finite.
QString fixedText(double magnitude, int decimals);

/// `magnitude` with up to `digits` significant digits, without trailing zeros after the point and without exponent.
/// `magnitude` is finite and at least 0.
QString significantText(double magnitude, int digits);

/// `number` without the noise of binary arithmetic beyond its 15th significant digit.
double withoutNoise(double number);

enum class Exponent { Forbidden, Allowed };

/// Reads an optional sign ("+", "-", U+2212), digits and one optional point: ".", "," or `point`.
///
/// The result is the number times ten to the power of `shift`. Nothing when the text is anything else, group separators
/// and blanks included, or when the number exceeds the range of double.
std::optional<double> readDecimal(QStringView text, QChar point, int shift, Exponent exponent);

/// Reads "inf" or U+221E, in any case, with an optional sign: -1 for negative, 1 for positive, nothing for other texts.
std::optional<int> readInfinity(QStringView text);

/// How infinities are written: U+221E, after U+2212 when negative.
QString infinityText(bool negative);

} // namespace tamble::client
