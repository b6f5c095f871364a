#pragma once

#include "scale/AxisScale.h"

#include <QtCore/QPointF>

namespace tamble::client {

/// Whether an axis of a plot frame shows anything: finite bounds that rise, above 0 on a logarithmic scale.
bool isShowable(const AxisRange &axis);

/// Place of a value along an axis: 0 at `from`, 1 at `to`, beyond them outside.
///
/// The place ends a million axis lengths outside, so that pixels made of it stay finite. NaN for a value or an axis
/// that cannot be placed.
double placeOnAxis(const AxisRange &axis, double value);

/// The two axes of a plot frame.
struct FrameAxes
{
    AxisRange x{20.0, 20000.0, AxisScale::Logarithmic};
    AxisRange y{-20.0, 20.0, AxisScale::Linear};

    bool operator==(const FrameAxes &) const = default;

    bool isShowable() const { return client::isShowable(x) && client::isShowable(y); }
    /// Normalised place of a point in axis units: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom), not
    /// clamped. A coordinate that cannot be placed is NaN.
    QPointF toNormalised(const QPointF &point) const;
    /// Whether a point in axis units lies inside the frame, edges included.
    bool contains(const QPointF &point) const { return x.contains(point.x()) && y.contains(point.y()); }
};

} // namespace tamble::client
