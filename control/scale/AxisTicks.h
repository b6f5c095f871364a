#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace tamble::client {

/// One mark of a vertical value axis: distance in pixels from the top, and the value as text.
struct AxisTick
{
    double y = 0.0;
    QString label;

    bool operator==(const AxisTick &) const = default;
};

/// Step between ticks, 1, 2, 5 or 10 times a power of ten, so that about `count` of them fit the range.
///
/// The result follows floating-point rules for empty and reversed ranges and counts of 0; it is then no usable number.
double axisStep(double minimum, double maximum, double count);

/// Ticks at the multiples of the step within `minimum`…`maximum`, lowest value first, at most `count` and 2000 of them;
/// the step is that of `count` even where it is more.
///
/// `height` is in pixels: `minimum` sits at the bottom edge (y = height), `maximum` at the top (y = 0). A count that is
/// not positive and an empty, reversed or non-finite range give no ticks.
QList<AxisTick> axisTicks(double minimum, double maximum, double count, double height);

} // namespace tamble::client
