#pragma once

#include "dynamics/TransferCurves.h"

namespace tamble::client {

// What the handles of a dynamics plot make of a parameter; levels are in dB.

/// A wanted value of a parameter as a handle may send it: the multiple of `step` (0 or not a number: not rounded)
/// nearest to it, then limited to the bounds, which are swapped when they are given in the wrong order.
///
/// NaN, which means that there is nothing to send, for a value or a bound that is NaN.
double limitedValue(double wanted, double minimum, double maximum, double step);

/// The value one step of a key further: moved by `change`, rounded and limited as above.
///
/// A value beyond a bound is not moved further out, and one that is not a number starts at the minimum. A `step` of 0
/// is continuous.
double steppedValue(double value, double change, double minimum, double maximum, double step);

/// Ratio of the run of a line and its rise, both in dB and counted from the point where it bends.
///
/// `highest` for a rise of 0 or less: the line has been drawn flat. NaN when there is no run to tell a ratio from.
double ratioOfLine(double run, double rise, double highest);

/// Height of a curve at the place `x`, both normalised as in `points`: where the curve jumps, the height behind the
/// jump; left of its first point 1, the floor of the plot. NaN for a curve without points or an `x` that is NaN.
double heightOfCurve(const CurvePoints &points, double x);

} // namespace tamble::client
