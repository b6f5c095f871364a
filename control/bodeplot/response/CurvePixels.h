#pragma once

#include "scale/PlotAxes.h"

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QSizeF>

namespace tamble::client {

/// Any curve given by points in axis units; `trim` is added to every y.
struct SampledCurve
{
    QList<QPointF> points;
    double trim = 0.0;

    /// A point with its trim.
    QPointF at(qsizetype index) const { return points[index] + QPointF(0.0, trim); }
};

/// Number of points inside the frame.
int visibleCount(const SampledCurve &curve, const PlotAxes &axes);

/// Thins neighbouring points that share a pixel column to the column's lowest and highest, in their order.
QList<QPointF> reducedToColumns(const QList<QPointF> &pixels);

/// The curve's lines in pixels of a plot area, cut at its edges.
///
/// A coordinate that is not finite, or not above 0 on a logarithmic axis, interrupts the line. A frame that shows
/// nothing and an empty size give no lines.
QList<QList<QPointF>> curvePixels(const SampledCurve &curve, const PlotAxes &axes, const QSizeF &size);

} // namespace tamble::client
