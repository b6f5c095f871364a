#include "StringRules.h"

#include "StringShapes.h"

#include <QByteArray>
#include <QChar>

#include <algorithm>
#include <limits>

namespace tamble::common {

namespace {

struct LengthRange
{
    qsizetype minimum = 0;
    qsizetype maximum = std::numeric_limits<qsizetype>::max();
};

bool isDigit(char32_t c)
{
    return c >= U'0' && c <= U'9';
}

bool isBetweenIgnoringCase(char32_t c, char32_t first, char32_t last)
{
    const char32_t lower = c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c;
    return lower >= first && lower <= last;
}

bool isText(char32_t c)
{
    return QChar::category(c) != QChar::Other_Control && !QChar::isSurrogate(c);
}

bool isFileNameCharacter(char32_t c)
{
    return isText(c) && !(c < 0x80 && QStringView(u"/\\:*?\"<>|").contains(QChar(static_cast<char16_t>(c))));
}

bool isAllowed(char32_t c, StringRule rule)
{
    switch (rule) {
    case StringRule::Ascii:
        return c >= 0x20 && c <= 0x7E;
    case StringRule::Alphanumeric:
        return isDigit(c) || isBetweenIgnoringCase(c, U'a', U'z');
    case StringRule::FileName:
        return isFileNameCharacter(c);
    case StringRule::DnsName:
        return isDigit(c) || (c >= U'a' && c <= U'z') || c == U'-' || c == U'.';
    case StringRule::CapDnsName:
        return isDigit(c) || isBetweenIgnoringCase(c, U'a', U'z') || c == U'-' || c == U'.';
    case StringRule::Hex:
        return isDigit(c) || isBetweenIgnoringCase(c, U'a', U'f');
    case StringRule::Password:
        return c > 0x20 && c <= 0x7E;
    case StringRule::Pattern:
        return true;
    case StringRule::Any:
    case StringRule::Name:
        break;
    }
    return isText(c);
}

LengthRange ownLengths(StringRule rule)
{
    switch (rule) {
    case StringRule::Name:
    case StringRule::FileName:
        return {.minimum = 1};
    case StringRule::DnsName:
    case StringRule::CapDnsName:
        return {.minimum = 1, .maximum = 253};
    case StringRule::Password:
        return {.minimum = 8};
    default:
        return {};
    }
}

LengthRange lengths(StringRule rule, const StringLimits &limits)
{
    LengthRange range = ownLengths(rule);
    range.minimum = std::max(range.minimum, limits.minimumLength);
    if (limits.maximumLength > 0)
        range.maximum = std::min(range.maximum, limits.maximumLength);
    return range;
}

StringVerdict shape(QStringView text, StringRule rule, const StringPattern &pattern)
{
    switch (rule) {
    case StringRule::Name:
        return nameShape(text);
    case StringRule::FileName:
        return fileNameShape(text);
    case StringRule::DnsName:
    case StringRule::CapDnsName:
        return dnsNameShape(text);
    case StringRule::Hex:
        return hexShape(text);
    case StringRule::Pattern:
        return pattern.match(text.toString());
    default:
        return {};
    }
}

} // namespace

StringVerdict validate(QStringView text, StringRule rule, const StringLimits &limits)
{
    qsizetype length = 0;
    for (qsizetype i = 0; i < text.size(); ++length) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t character = isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        if (!isAllowed(character, rule))
            return {StringState::Invalid, StringFault::ForbiddenCharacter, i, 0, character};
        i += isPair ? 2 : 1;
    }

    const LengthRange range = lengths(rule, limits);
    if (length > range.maximum)
        return {StringState::Invalid, StringFault::TooLong, -1, range.maximum};
    if (limits.maximumBytes > 0 && text.toUtf8().size() > limits.maximumBytes)
        return {StringState::Invalid, StringFault::TooManyBytes, -1, limits.maximumBytes};
    if (length < range.minimum)
        return {StringState::Intermediate, StringFault::TooShort, -1, range.minimum};
    return shape(text, rule, limits.pattern);
}

StringVerdict validateCapDnsName(QStringView text)
{
    return validate(text, StringRule::CapDnsName);
}

} // namespace tamble::common
