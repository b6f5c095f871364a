#pragma once

#include <QtCore/QList>

namespace tamble::client {

/// How values are spread along an axis; the numbers are those that pages use for their scale properties.
enum class AxisScale { Linear = 0, Logarithmic = 1 };

/// The scale behind a page's number; unknown numbers are linear.
AxisScale axisScale(int number);

/// Value range of an axis with its scale; it may run backwards (`from` above `to`).
struct AxisRange
{
    double from = 0.0;
    double to = 1.0;
    AxisScale scale = AxisScale::Linear;

    bool operator==(const AxisRange &) const = default;

    double lowest() const { return from < to ? from : to; }
    double highest() const { return from < to ? to : from; }

    /// Whether values can be placed: finite and different bounds, both above 0 on a logarithmic scale.
    bool isUsable() const;
    /// Whether a plot frame shows anything along it: usable, and rising.
    bool isShowable() const { return isUsable() && from < to; }
    /// Whether a value lies within the bounds, both included; never for NaN.
    bool contains(double value) const;
    /// 0 at `from` to 1 at `to`, clamped; 0 for NaN and for a range that is not usable.
    double toPosition(double value) const;
    /// The same for an axis of a plot frame, beyond its ends too: NaN for a value or an axis that cannot be placed. It
    /// ends a million axis lengths outside, so that pixels made of it stay finite.
    double place(double value) const;
    /// The value at a position, beyond the ends too.
    double valueAt(double position) const;
    /// The value at a position, clamped to the bounds; `from` for NaN and for a range that is not usable.
    double toValue(double position) const;
    /// Positions of the values that lie within the bounds, in their order; none for a range that is not usable.
    QList<double> toPositions(const QList<double> &values) const;
};

} // namespace tamble::client
