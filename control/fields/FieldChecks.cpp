#include "fields/FieldChecks.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

using State = QValidator::State;

constexpr QChar minusSign(0x2212); // as typeset texts have it

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isMinus(QChar character)
{
    return character == u'-' || character == minusSign;
}

bool isSign(QChar character)
{
    return isMinus(character) || character == u'+';
}

/// A number's text taken apart: sign, digits, and the fraction when there is a separator.
struct NumberText
{
    bool negative = false;
    bool separated = false;
    qsizetype wholeDigits = 0;
    qsizetype fractionDigits = 0;
};

/// Reads the parts of `text`; false when it holds anything else.
bool readNumber(const QString &text, NumberText &number)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (isDigit(character))
            ++(number.separated ? number.fractionDigits : number.wholeDigits);
        else if (i == 0 && isSign(character))
            number.negative = isMinus(character);
        else if (!number.separated && (character == u'.' || character == u','))
            number.separated = true;
        else
            return false;
    }
    return true;
}

bool isWithin(double value, double bottom, double top)
{
    return (std::isnan(bottom) || value >= bottom) && (std::isnan(top) || value <= top);
}

QString withoutLeadingZeros(const QString &number)
{
    const qsizetype first = !number.isEmpty() && isSign(number.at(0)) ? 1 : 0;
    qsizetype last = first;
    while (last + 1 < number.size() && number.at(last) == u'0' && isDigit(number.at(last + 1)))
        ++last;
    return number.left(first) + number.mid(last);
}

/// A part of an address that is still being typed may be empty.
bool isAddressNumber(const QString &part)
{
    const bool digitsOnly = std::all_of(part.begin(), part.end(), isDigit);
    const bool leadingZero = part.size() > 1 && part.startsWith(u'0');
    return digitsOnly && !leadingZero && part.size() <= 3 && part.toInt() <= 255;
}

} // namespace

State checkDecimal(const QString &text, double bottom, double top, int decimals)
{
    const QString trimmed = text.trimmed();
    NumberText number;
    if (!readNumber(trimmed, number) || number.wholeDigits + number.fractionDigits > 15)
        return State::Invalid;
    if ((number.negative && bottom >= 0.0) || (number.separated && decimals == 0))
        return State::Invalid;
    if (decimals >= 0 && number.fractionDigits > decimals)
        return State::Invalid;

    const bool complete = number.separated ? number.fractionDigits > 0 : number.wholeDigits > 0;
    if (!complete || trimmed.size() != text.size())
        return State::Intermediate;
    const double value = tidyDecimal(trimmed).toDouble();
    return isWithin(value, bottom, top) ? State::Acceptable : State::Intermediate;
}

State checkInteger(const QString &text, int bottom, int top)
{
    const QString trimmed = text.trimmed();
    NumberText number;
    if (!readNumber(trimmed, number) || number.separated || number.wholeDigits > 10)
        return State::Invalid;
    if (number.negative && bottom >= 0)
        return State::Invalid;

    if (number.wholeDigits == 0 || trimmed.size() != text.size())
        return State::Intermediate;
    const qlonglong value = tidyInteger(trimmed).toLongLong();
    return value >= bottom && value <= top ? State::Acceptable : State::Intermediate;
}

State checkIpAddress(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QStringList parts = trimmed.split(u'.');
    const bool gap = std::any_of(parts.begin(), parts.end() - 1, [](const QString &part) { return part.isEmpty(); });
    if (parts.size() > 4 || gap || !std::all_of(parts.begin(), parts.end(), isAddressNumber))
        return State::Invalid;
    const bool complete = parts.size() == 4 && !parts.last().isEmpty();
    return complete && trimmed.size() == text.size() ? State::Acceptable : State::Intermediate;
}

State checkDigits(const QString &text, int minimumLength, int maximumLength)
{
    if (text.size() > maximumLength || !std::all_of(text.begin(), text.end(), isDigit))
        return State::Invalid;
    return text.size() < minimumLength ? State::Intermediate : State::Acceptable;
}

bool isTrivialPin(const QString &digits)
{
    for (const int step : {0, 1, -1}) {
        const auto breaksRun = [step](QChar left, QChar right) { return right.unicode() - left.unicode() != step; };
        if (std::adjacent_find(digits.begin(), digits.end(), breaksRun) == digits.end())
            return true;
    }
    return false;
}

QString tidyDecimal(const QString &text)
{
    QString number = text.trimmed().replace(u',', u'.').replace(minusSign, u'-');
    if (number.endsWith(u'.'))
        number.chop(1);
    return withoutLeadingZeros(number);
}

QString tidyInteger(const QString &text)
{
    return withoutLeadingZeros(text.trimmed().replace(minusSign, u'-'));
}

} // namespace tamble::client
