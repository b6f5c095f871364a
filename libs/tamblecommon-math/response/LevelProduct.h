#pragma once

#include "response/Section.h"

#include <vector>

namespace tamble::common::response {

class FrequencyGrid;
class RecordModel;
struct BlockResponse;

/// The level of records in series from the product of their powers: one logarithm per point instead of one per point
/// and record.
class LevelProduct
{
public:
    /// `level` gets a value in dB, from -240 to 240, per point of the grid.
    void evaluate(const std::vector<RecordModel> &models, FrequencyGrid &grid, std::vector<double> &level);

private:
    void multiplySections(const double *tangents, BlockResponse &product) const;

    std::vector<Section> m_sections; // Of all records, an even number.
    std::vector<const RecordModel *> m_taps;
};

} // namespace tamble::common::response
