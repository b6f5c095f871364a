#pragma once

#include "bodeplot/frame/FrameTicks.h"
#include "scenegraph/StrokeGeometry.h"

#include <QtCore/QSizeF>

namespace tamble::client {

/// Places of the lines across one axis, 0 to 1 of its length.
struct GridPlaces
{
    QList<double> full;  ///< Lines at full strength.
    QList<double> faint; ///< Lines of values that the page did not list.
    TickProblem problem = TickProblem::None;
};

/// Lines at the ticks of an axis without those at its ends or outside; those of chosen values at full strength.
GridPlaces gridPlaces(const AxisRange &axis, double increment, const TickChoice &choice);

/// What lines of a grid are drawn on.
struct GridCanvas
{
    QSizeF size;
    /// Device pixels per pixel.
    double pixelRatio = 1.0;
};

/// Lines across the canvas, horizontal ones counted from the bottom, vertical ones from the left.
///
/// They are as many whole device pixels wide as come closest to `width`, at least one, and cover whole device pixels
/// inside the canvas: lines of a grid that are blurred or of uneven width disturb the curves. A width or a size that is
/// not positive gives no lines.
StrokeGeometry crispLines(const QList<double> &places, Qt::Orientation orientation, const GridCanvas &canvas,
                          double width);

} // namespace tamble::client
