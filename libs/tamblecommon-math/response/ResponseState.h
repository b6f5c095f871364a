#pragma once

#include "response/CurveSum.h"
#include "response/FrequencyGrid.h"
#include "response/LevelProduct.h"
#include "response/RecordModel.h"

#include <vector>

namespace tamble::common::response {

/// What is kept between two evaluations of a block.
struct ResponseState
{
    FrequencyGrid grid;

    /// The records as they were when their curves were evaluated on the grid, in the same order.
    std::vector<RecordModel> curveModels;

    /// The records as they were when their common level was evaluated.
    std::vector<RecordModel> levelModels;

    CurveSum sum;
    LevelProduct product;
};

} // namespace tamble::common::response
