#include "response/ResponseCurve.h"

#include "response/FrequencyGrid.h"
#include "response/RecordModel.h"
#include "response/ResponseKernels.h"

#include <algorithm>

namespace tamble::common::response {

namespace {

void setFlat(std::vector<double> &values, std::size_t size)
{
    values.assign(size, 0.0);
}

} // namespace

void evaluateCurve(const RecordModel &model, FrequencyGrid &grid, FilterResponse &curve)
{
    const std::size_t size = grid.size();
    if (model.isFlat())
        setFlat(curve.phase, size);
    if (model.hasFlatLevel())
        setFlat(curve.magnitude, size);
    if (model.isFlat())
        return;

    const ResponseKernels &kernels = responseKernels();
    curve.magnitude.resize(size);
    curve.phase.resize(size);
    BlockResponse block;
    alignas(64) double values[blockSize];
    for (std::size_t first = 0; first < size; first += blockSize) {
        const std::size_t count = std::min(blockSize, size - first);
        model.evaluate(grid, first, block);
        kernels.phase(block, values);
        std::copy_n(values, count, curve.phase.data() + first);
        if (model.hasFlatLevel())
            continue;
        kernels.level(block, values);
        std::copy_n(values, count, curve.magnitude.data() + first);
    }
}

} // namespace tamble::common::response
