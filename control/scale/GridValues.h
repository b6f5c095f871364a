#pragma once

#include "scale/AxisRange.h"

#include <optional>

namespace tamble::client {

/// Where the lines of a regular grid lie.
struct GridRule
{
    AxisRange range;
    /// Distance of the lines; ignored on a logarithmic scale, which has 1…9 times each power of ten.
    double step = 0.1;
    /// Value that the steps are counted from.
    double origin = 0.0;
    /// Whether the two bounds get a line although they are no multiples of the step.
    bool includeEnds = false;
};

/// Values of the lines, lowest first.
///
/// None for a range that is not usable. Nothing at all when the step is not positive or infinite, there would be more
/// than 1000 lines, or they are nearer to each other than numbers of their size can be: mistakes of the page, which are
/// worth a message.
std::optional<QList<double>> gridValues(const GridRule &rule);

/// The values of `rule` thinned to at most `maximumCount` (0 or less: all).
///
/// Linear: every 2nd, 5th, 10th … multiple of the step, counted from the origin, so that round values stay.
/// Logarithmic: 1, 2 and 5 times each power of ten, then the powers of ten, then every 2nd, 5th, 10th … of them.
std::optional<QList<double>> thinnedGridValues(const GridRule &rule, int maximumCount);

} // namespace tamble::client
