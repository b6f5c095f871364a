#include "scale/AxisTicks.h"

#include <cmath>

namespace tamble::client {

namespace {

/// Far beyond what a screen can show; each tick is an object and, in QML, a line and a text.
constexpr double maximumTicks = 2000.0;

} // namespace

double axisStep(double minimum, double maximum, double count)
{
    const double range = maximum - minimum;
    const double magnitude = std::pow(10.0, std::floor(std::log10(range / count)));
    const double relative = count / range * magnitude;
    if (relative <= 0.35)
        return 10.0 * magnitude;
    if (relative <= 0.75)
        return 5.0 * magnitude;
    if (relative <= 1.0)
        return 2.0 * magnitude;
    return magnitude;
}

QList<AxisTick> axisTicks(double minimum, double maximum, double count, double height)
{
    QList<AxisTick> ticks;
    if (!(minimum < maximum) || !(count > 0.0) || !std::isfinite(height))
        return ticks;
    const double step = axisStep(minimum, maximum, count);
    if (!std::isfinite(step) || step <= 0.0)
        return ticks;

    const double first = std::ceil(minimum / step);
    const double pixelsPerUnit = height / (maximum - minimum);
    const double limit = std::fmin(count, maximumTicks);
    for (int i = 0; i < limit; ++i) {
        const double value = (first + i) * step;
        // Written so that a value that is no number ends the walk as well.
        if (!(value <= maximum))
            break;
        ticks.append({height - (value - minimum) * pixelsPerUnit, QString::number(value, 'g', 6)});
    }
    return ticks;
}

} // namespace tamble::client
