#pragma once

namespace tamble::client {

/// How far `value` has come on the way from one end to the other, 0 to 1; 0 where there is no way, and for what is no
/// number.
double progressFraction(double from, double to, double value);

} // namespace tamble::client
