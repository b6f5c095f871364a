#pragma once

#include "BodePlotCalculation.h"

namespace tamble::common::response {

class FrequencyGrid;
class RecordModel;

/// Level and phase of one record at every point of the grid.
void evaluateCurve(const RecordModel &model, FrequencyGrid &grid, FilterResponse &curve);

} // namespace tamble::common::response
