#pragma once

#include "response/ResponseKernels.h"

#include <span>
#include <vector>

namespace tamble::common::response {

/// Puts taps into the form that ResponseKernels::taps takes; trailing zeros are left out.
///
/// The taps of a group around its middle at 7.5 are h[8 + m] and h[7 - m]: their sum goes with cos((m + 1/2) w), their
/// difference with sin((m + 1/2) w). So a tap costs one multiplication instead of the four of a complex product.
inline void groupTaps(std::span<const double> taps, std::vector<double> &values)
{
    while (!taps.empty() && taps.back() == 0)
        taps = taps.first(taps.size() - 1);

    constexpr std::size_t pairs = tapGroup / 2;
    const std::size_t groups = (taps.size() + tapGroup - 1) / tapGroup;
    values.resize(groups * tapGroup);
    const auto tapAt = [taps](std::size_t i) { return i < taps.size() ? taps[i] : 0.0; };
    for (std::size_t first = 0; first < values.size(); first += tapGroup) {
        for (std::size_t m = 0; m < pairs; ++m) {
            const double after = tapAt(first + pairs + m);
            const double before = tapAt(first + pairs - 1 - m);
            values[first + m] = after + before;
            values[first + pairs + m] = after - before;
        }
    }
}

} // namespace tamble::common::response
