#pragma once

#include "BodePlotCalculation.h"

#include <cstddef>
#include <vector>

namespace tamble::common::response {

class RecordModel;

/// Sums curves point by point, in order and always anew, so that a sum does not depend on how often it was taken.
class CurveSum
{
public:
    /// Sums `size` points of the curves, one per model. Levels stay within -240 .. 240 dB and phases above -180 up to
    /// 180 degrees.
    void sum(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models, std::size_t size,
             FilterResponse &result);

private:
    // Curves that are not 0 throughout.
    std::vector<const double *> m_levels;
    std::vector<const double *> m_phases;
};

} // namespace tamble::common::response
