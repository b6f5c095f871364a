#pragma once

#include "TambleCommonMathExport.h"

/// Mappings between the linear and logarithmic scales of plots, axes and faders.
///
/// The three mappings share these rules:
/// - Any range may run backwards, and nothing is clamped: an x outside the input range gives a result outside the
///   output range.
/// - An x equal to inMax gives exactly outMax, an x equal to inMin exactly outMin.
/// - Where the mapping has no meaning the result is outMin: an argument that is NaN or infinite, an empty input range,
///   a bound or position of 0 or less on a logarithmic scale, an overflow. Frames are created with all ranges 0, and
///   their callers round the result to a pixel, so these cases occur and must stay harmless. An outMin that is not
///   finite itself is handed back as it is.
namespace tamble::common {

/// Position of x on the linear scale inMin..inMax, mapped to the linear scale outMin..outMax:
/// outMin + (x - inMin) (outMax - outMin) / (inMax - inMin).
TAMBLE_COMMON_MATH_EXPORT double lin2lin(double x, double inMin, double inMax, double outMin, double outMax) noexcept;

/// Position of x on the logarithmic scale inMin..inMax, mapped to the linear scale outMin..outMax:
/// outMin + (outMax - outMin) ln(x / inMin) / ln(inMax / inMin).
///
/// x, inMin and inMax must be greater than 0.
TAMBLE_COMMON_MATH_EXPORT double log2lin(double x, double inMin, double inMax, double outMin, double outMax) noexcept;

/// Position of x on the linear scale inMin..inMax, mapped to the logarithmic scale outMin..outMax:
/// outMin (outMax / outMin)^((x - inMin) / (inMax - inMin)).
///
/// The inverse of log2lin with the two ranges exchanged. outMin and outMax must be greater than 0.
TAMBLE_COMMON_MATH_EXPORT double lin2log(double x, double inMin, double inMax, double outMin, double outMax) noexcept;

/// The largest power of ten that is not above |x|: 20 gives 10, 1000 gives 1000, 0.05 gives 0.01.
///
/// The result is always positive: 0, NaN and infinities give 1, and magnitudes below 1e-307 give 1e-307.
TAMBLE_COMMON_MATH_EXPORT double orderOfMagnitude(double x) noexcept;

} // namespace tamble::common
