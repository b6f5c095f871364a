#pragma once

#include "BodePlotCalculation.h"

#include <cstddef>
#include <vector>

namespace tamble::common::response {

class RecordModel;

/// Sums curves point by point.
///
/// Of more curves than a group has, each group keeps a sum of its own, so that one changed curve costs no more than its
/// group and one addition for every other. Which numbers are added in which order depends on the places of the curves
/// alone, so that a sum does not depend on how often it was taken, nor on what had changed.
class CurveSum
{
public:
    /// To be called for every curve that is another one than at the last sum.
    void curveChanged(std::size_t index);

    /// Sums `size` points of the curves, one per model. Levels stay within -240 .. 240 dB and phases above -180 up to
    /// 180 degrees.
    void sum(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models, std::size_t size,
             FilterResponse &result);

private:
    /// Sum of some neighbouring curves, not brought within the limits. A sum that is 0 throughout is empty.
    struct Group
    {
        FilterResponse sum;
        bool stale = true;
    };

    void gather(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models, std::size_t first,
                std::size_t last);
    void updateGroups(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models,
                      std::size_t size);

    std::vector<Group> m_groups;
    std::size_t m_count = 0; ///< Of the curves in the groups.

    // What is summed: only what is not 0 throughout.
    std::vector<const double *> m_levels;
    std::vector<const double *> m_phases;
};

} // namespace tamble::common::response
