#pragma once

namespace tamble::client {

/// The multiple of a step nearest to a value; the sign of the step does not matter, and 0 or NaN leave the value as is.
double snapped(double value, double step);

/// Smallest of 1, 2 and 5 times a power of ten that is not below `minimum`; 0 when that is not positive and finite.
double niceStepAtLeast(double minimum);

} // namespace tamble::client
