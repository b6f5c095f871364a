#include "StringShapes.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace tamble::common {

namespace {

constexpr qsizetype maximumLabelLength = 63;

StringVerdict incomplete(StringFault fault, qsizetype position = -1, qsizetype limit = 0)
{
    return {StringState::Intermediate, fault, position, limit};
}

bool isDeviceName(QStringView stem)
{
    static constexpr std::array plainNames{QLatin1String("CON"), QLatin1String("PRN"), QLatin1String("AUX"),
                                           QLatin1String("NUL")};
    static constexpr std::array numberedNames{QLatin1String("COM"), QLatin1String("LPT")};

    const auto matches = [](QStringView name) {
        return [name](QLatin1String known) { return name.compare(known, Qt::CaseInsensitive) == 0; };
    };
    if (stem.size() == 4 && stem.back() >= u'1' && stem.back() <= u'9')
        return std::any_of(numberedNames.begin(), numberedNames.end(), matches(stem.first(3)));
    return std::any_of(plainNames.begin(), plainNames.end(), matches(stem));
}

StringVerdict labelShape(QStringView label, qsizetype start)
{
    if (label.isEmpty())
        return incomplete(StringFault::EmptyLabel, start);
    if (label.size() > maximumLabelLength)
        return incomplete(StringFault::LabelTooLong, start, maximumLabelLength);
    if (label.front() == u'-')
        return incomplete(StringFault::LabelHyphen, start);
    if (label.back() == u'-')
        return incomplete(StringFault::LabelHyphen, start + label.size() - 1);
    return {};
}

} // namespace

StringVerdict nameShape(QStringView text)
{
    if (text.front().isSpace())
        return incomplete(StringFault::OuterBlank, 0);
    if (text.back().isSpace())
        return incomplete(StringFault::OuterBlank, text.size() - 1);
    return {};
}

StringVerdict fileNameShape(QStringView text)
{
    if (const StringVerdict name = nameShape(text); !name.isAcceptable())
        return name;
    // Covers "." and ".." too.
    if (text.back() == u'.')
        return incomplete(StringFault::TrailingDot, text.size() - 1);
    // The device is also meant with blanks before the extension.
    if (isDeviceName(text.first(text.contains(u'.') ? text.indexOf(u'.') : text.size()).trimmed()))
        return incomplete(StringFault::ReservedName);
    return {};
}

StringVerdict dnsNameShape(QStringView text)
{
    qsizetype start = 0;
    for (;;) {
        const qsizetype dot = text.indexOf(u'.', start);
        const qsizetype end = dot < 0 ? text.size() : dot;
        const StringVerdict label = labelShape(text.sliced(start, end - start), start);
        if (!label.isAcceptable() || dot < 0)
            return label;
        start = dot + 1;
    }
}

StringVerdict hexShape(QStringView text)
{
    return text.size() % 2 == 0 ? StringVerdict{} : incomplete(StringFault::OddLength);
}

} // namespace tamble::common
