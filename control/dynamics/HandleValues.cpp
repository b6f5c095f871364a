#include "dynamics/HandleValues.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamble::client {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

/// Dividing by a whole number of steps per unit rounds once: 3 / 10 is the number nearest to 0.3, 3 · 0.1 is not.
double rounded(double value, double step)
{
    const double size = std::abs(step);
    const double perUnit = std::round(1.0 / size);
    const bool dividesUnit = size < 1.0 && std::abs(perUnit * size - 1.0) < 1e-9;
    const double result = dividesUnit ? std::round(value * perUnit) / perUnit : std::round(value / size) * size;
    return std::isfinite(result) ? result : value;
}

} // namespace

double limitedValue(double wanted, double minimum, double maximum, double step)
{
    if (std::isnan(wanted) || std::isnan(minimum) || std::isnan(maximum))
        return nothing;
    // Adding 0 makes 0 of -0, which would be shown with a sign.
    return std::clamp(rounded(wanted, step), std::min(minimum, maximum), std::max(minimum, maximum)) + 0.0;
}

double steppedValue(double value, double change, double minimum, double maximum, double step)
{
    if (std::isnan(value))
        return limitedValue(std::min(minimum, maximum), minimum, maximum, 0.0);
    const double moved = limitedValue(value + change, minimum, maximum, step);
    return (moved - value) * change < 0.0 ? value : moved;
}

double ratioOfLine(double run, double rise, double highest)
{
    if (!(run > 0.0) || std::isnan(rise))
        return nothing;
    return rise > 0.0 ? run / rise : highest;
}

double heightOfCurve(const CurvePoints &points, double x)
{
    if (points.isEmpty() || std::isnan(x))
        return nothing;
    if (x < points.first().x())
        return 1.0;
    double height = points.first().y();
    for (qsizetype i = 1; i < points.size(); ++i) {
        const QPointF &from = points[i - 1];
        const QPointF &to = points[i];
        if (x < from.x())
            break;
        height = x < to.x() ? from.y() + (x - from.x()) / (to.x() - from.x()) * (to.y() - from.y()) : to.y();
    }
    return height;
}

} // namespace tamble::client
