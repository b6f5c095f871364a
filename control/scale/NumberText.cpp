#include "scale/NumberText.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int maximumDecimals = 10;

QString plainText(double value, int decimals)
{
    if (decimals < 0)
        return QString::number(value + 0.0, 'g', 6); // adding 0 turns -0 into 0
    const QString text = QString::number(value, 'f', std::min(decimals, maximumDecimals));
    const bool isZero = std::none_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'1' && c <= u'9'; });
    return isZero && text.startsWith(u'-') ? text.mid(1) : text;
}

} // namespace

int decimalsOfStep(double step)
{
    double scaled = std::abs(step);
    for (int decimals = 0; decimals < maximumDecimals; ++decimals) {
        if (!std::isfinite(scaled))
            return 0;
        if (std::abs(scaled - std::round(scaled)) <= 1e-12 * std::max(scaled, 1.0) && scaled >= 0.5)
            return decimals;
        scaled *= 10.0;
    }
    return maximumDecimals;
}

QString numberText(double value, int decimals, AxisScale scale)
{
    constexpr double thousand = 1000.0;
    if (scale == AxisScale::Logarithmic && value >= thousand)
        return plainText(value / thousand, decimals) + u'k';
    return plainText(value, decimals);
}

} // namespace tamble::client
