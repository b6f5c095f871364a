#include "workspace/EdgeSpeed.h"

#include <algorithm>

namespace tamble::client {

namespace {

constexpr double edgeWidth = 24.0;
constexpr double fastest = 600.0;

// In a viewport narrower than both edges the nearer one counts.
double speedAt(double place, double length)
{
    const double before = edgeWidth - place;
    const double behind = place - (length - edgeWidth);
    if (std::max(before, behind) <= 0.0 || before == behind)
        return 0.0;
    const double depth = before > behind ? -before : behind;
    return fastest * std::clamp(depth / edgeWidth, -1.0, 1.0);
}

} // namespace

QPointF edgeSpeed(const QPointF &pointer, const QSizeF &viewport)
{
    return QPointF(speedAt(pointer.x(), viewport.width()), speedAt(pointer.y(), viewport.height()));
}

} // namespace tamble::client
