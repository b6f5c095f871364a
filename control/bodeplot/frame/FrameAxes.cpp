#include "bodeplot/frame/FrameAxes.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamble::client {

bool isShowable(const AxisRange &axis)
{
    return axis.isUsable() && axis.from < axis.to;
}

double placeOnAxis(const AxisRange &axis, double value)
{
    const bool isLogarithmic = axis.scale == AxisScale::Logarithmic;
    if (!isShowable(axis) || !std::isfinite(value) || (isLogarithmic && value <= 0.0))
        return std::numeric_limits<double>::quiet_NaN();
    constexpr double farOutside = 1e6;
    const double place = isLogarithmic ? common::log2lin(value, axis.from, axis.to, 0.0, 1.0)
                                       : common::lin2lin(value, axis.from, axis.to, 0.0, 1.0);
    return std::clamp(place, -farOutside, farOutside);
}

QPointF FrameAxes::toNormalised(const QPointF &point) const
{
    return {placeOnAxis(x, point.x()), 1.0 - placeOnAxis(y, point.y())};
}

} // namespace tamble::client
