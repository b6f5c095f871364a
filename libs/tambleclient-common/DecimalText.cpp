#include "DecimalText.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr QChar minusSign(0x2212);
constexpr QChar infinitySign(0x221E);

/// mantissa * 10^exponent, the mantissa having `digits` decimal digits.
struct Decimal
{
    quint64 mantissa = 0;
    int digits = 0;
    int exponent = 0;

    int leadingExponent() const { return exponent + digits - 1; }
};

Decimal readAsDecimal(double magnitude)
{
    const int digits = magnitude < 1e15 ? 15 : 17;
    QByteArray text = QByteArray::number(magnitude, 'e', digits - 1);
    const qsizetype exponentMark = text.indexOf('e');
    const int leadingExponent = text.mid(exponentMark + 1).toInt();
    text.truncate(exponentMark);
    text.remove(1, 1);
    return {text.toULongLong(), digits, leadingExponent - digits + 1};
}

quint64 powerOfTen(int exponent)
{
    quint64 power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

/// Digits of the number counted in units of 10^-decimals.
QString roundedDigits(const Decimal &number, int decimals)
{
    const int dropped = -(number.exponent + decimals);
    if (number.mantissa == 0 || dropped > number.digits)
        return QStringLiteral("0");
    if (dropped <= 0)
        return QString::number(number.mantissa) + QString(-dropped, u'0');
    const quint64 unit = powerOfTen(dropped);
    return QString::number((number.mantissa + unit / 2) / unit);
}

QString withPoint(QString digits, int decimals)
{
    if (decimals <= 0)
        return digits == u'0' ? digits : digits + QString(-decimals, u'0');
    digits = digits.rightJustified(decimals + 1, u'0');
    return digits.insert(digits.size() - decimals, u'.');
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Removes a sign from the front of `text` and returns it as '-' or '+'.
char takeSign(QStringView &text)
{
    if (text.isEmpty() || (text.front() != u'-' && text.front() != minusSign && text.front() != u'+'))
        return '+';
    const char sign = text.front() == u'+' ? '+' : '-';
    text = text.sliced(1);
    return sign;
}

/// Removes an exponent from the end of `text`; 0 when there is none, nothing when it is not a number.
std::optional<int> takeExponent(QStringView &text)
{
    const qsizetype mark = text.indexOf(u'e', 0, Qt::CaseInsensitive);
    if (mark < 0)
        return 0;
    bool isNumber = false;
    const QStringView digits = text.sliced(mark + 1);
    const int exponent = digits.toInt(&isNumber);
    if (!isNumber || digits.back().isSpace() || digits.front().isSpace())
        return std::nullopt;
    text = text.first(mark);
    return exponent;
}

} // namespace

QString fixedText(double magnitude, int decimals)
{
    return withPoint(roundedDigits(readAsDecimal(magnitude), decimals), decimals);
}

QString significantText(double magnitude, int digits)
{
    const Decimal number = readAsDecimal(magnitude);
    const int decimals = digits - 1 - number.leadingExponent();
    QString text = withPoint(roundedDigits(number, decimals), decimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

double withoutNoise(double number)
{
    return std::isfinite(number) ? QByteArray::number(number, 'e', 14).toDouble() : number;
}

std::optional<double> readDecimal(QStringView text, QChar point, int shift, Exponent exponent)
{
    QByteArray number(1, takeSign(text));
    if (exponent == Exponent::Allowed) {
        const std::optional<int> written = takeExponent(text);
        // Beyond this, the sum with shift might overflow; the number does in any case.
        if (!written || std::abs(*written) > 10'000)
            return std::nullopt;
        shift += *written;
    }

    bool hasPoint = false;
    bool hasDigit = false;
    for (const QChar c : text) {
        if (isAsciiDigit(c)) {
            number += c.toLatin1();
            hasDigit = true;
        } else if (!hasPoint && (c == u'.' || c == u',' || c == point)) {
            number += '.';
            hasPoint = true;
        } else {
            return std::nullopt;
        }
    }
    if (!hasDigit)
        return std::nullopt;

    number += 'e' + QByteArray::number(shift);
    bool isInRange = false;
    const double result = number.toDouble(&isInRange);
    return isInRange && std::isfinite(result) ? std::optional(result) : std::nullopt;
}

std::optional<int> readInfinity(QStringView text)
{
    const int sign = takeSign(text) == '-' ? -1 : 1;
    const bool isInfinity = text == infinitySign || text.compare(u"inf", Qt::CaseInsensitive) == 0;
    return isInfinity ? std::optional(sign) : std::nullopt;
}

QString infinityText(bool negative)
{
    return negative ? QString(minusSign) + infinitySign : QString(infinitySign);
}

} // namespace tamble::client
