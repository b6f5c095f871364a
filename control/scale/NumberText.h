#pragma once

#include "scale/AxisRange.h"

#include <QtCore/QString>

namespace tamble::client {

/// Decimals that a step of an axis needs: 10 needs 0, 0.5 needs 1, 0.25 needs 2; at most 10.
int decimalsOfStep(double step);

/// A number of an axis as text, always with a decimal point.
///
/// Negative `decimals` mean automatic: six significant digits. A value that rounds to 0 reads without a sign; on a
/// logarithmic scale 1000 and more are written in thousands ("1k").
QString numberText(double value, int decimals, AxisScale scale);

} // namespace tamble::client
