#pragma once

#include "scale/AxisRange.h"

#include <QtCore/QPointF>

namespace tamble::client {

/// The two axes of a frequency plot: Hz to the right, dB upwards.
struct PlotAxes
{
    AxisRange x{20.0, 20000.0, AxisScale::Logarithmic};
    AxisRange y{-20.0, 20.0, AxisScale::Linear};

    bool operator==(const PlotAxes &) const = default;

    bool isShowable() const { return x.isShowable() && y.isShowable(); }
    /// Normalised place of a point in axis units: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom), not
    /// clamped. A coordinate that cannot be placed is NaN.
    QPointF toNormalised(const QPointF &point) const { return {x.place(point.x()), 1.0 - y.place(point.y())}; }
    /// Whether a point in axis units lies inside, edges included.
    bool contains(const QPointF &point) const { return x.contains(point.x()) && y.contains(point.y()); }
};

} // namespace tamble::client
