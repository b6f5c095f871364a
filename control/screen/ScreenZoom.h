#pragma once

namespace tamble::client {

/// Zoom factor that gives a design made for `designDpi` its size on a screen of `logicalDpi`.
///
/// Rounded to 0.05 and kept within 0.5 to 3; values that are not positive numbers give 1.
double autoZoomFactor(double logicalDpi, double designDpi);

} // namespace tamble::client
