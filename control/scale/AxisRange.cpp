#include "scale/AxisRange.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamble::client {

AxisScale axisScale(int number)
{
    return number == int(AxisScale::Logarithmic) ? AxisScale::Logarithmic : AxisScale::Linear;
}

bool AxisRange::isUsable() const
{
    if (!std::isfinite(from) || !std::isfinite(to) || from == to)
        return false;
    return scale == AxisScale::Linear || lowest() > 0.0;
}

bool AxisRange::contains(double value) const
{
    return value >= lowest() && value <= highest();
}

double AxisRange::place(double value) const
{
    const bool isLogarithmic = scale == AxisScale::Logarithmic;
    if (!isShowable() || !std::isfinite(value) || (isLogarithmic && value <= 0.0))
        return std::numeric_limits<double>::quiet_NaN();
    constexpr double farOutside = 1e6;
    const double place =
        isLogarithmic ? common::log2lin(value, from, to, 0.0, 1.0) : common::lin2lin(value, from, to, 0.0, 1.0);
    return std::clamp(place, -farOutside, farOutside);
}

double AxisRange::valueAt(double position) const
{
    return scale == AxisScale::Logarithmic ? common::lin2log(position, 0.0, 1.0, from, to)
                                           : common::lin2lin(position, 0.0, 1.0, from, to);
}

double AxisRange::toPosition(double value) const
{
    if (!isUsable() || std::isnan(value))
        return 0.0;
    // Clamping the value first keeps infinities and, on a logarithmic scale, values of 0 and less meaningful.
    const double inside = std::clamp(value, lowest(), highest());
    const double position = scale == AxisScale::Logarithmic ? common::log2lin(inside, from, to, 0.0, 1.0)
                                                            : common::lin2lin(inside, from, to, 0.0, 1.0);
    return std::clamp(position, 0.0, 1.0);
}

double AxisRange::toValue(double position) const
{
    if (!isUsable() || std::isnan(position))
        return from;
    return std::clamp(valueAt(std::clamp(position, 0.0, 1.0)), lowest(), highest());
}

QList<double> AxisRange::toPositions(const QList<double> &values) const
{
    QList<double> positions;
    if (!isUsable())
        return positions;
    for (const double value : values) {
        if (contains(value))
            positions.append(toPosition(value));
    }
    return positions;
}

} // namespace tamble::client
