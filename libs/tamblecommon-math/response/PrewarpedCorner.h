#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamble::common::response {

/// 1 / tan(pi corner / sampleRate), the factor that brings a prewarped frequency into units of the corner.
///
/// Its square is finite for every usable corner and rate.
inline double inversePrewarpedCorner(double corner, double sampleRate)
{
    return std::min(1 / std::tan(std::numbers::pi * (corner / sampleRate)), 1e150);
}

} // namespace tamble::common::response
