#include "response/CurveSum.h"

#include "response/RecordModel.h"
#include "response/ResponseKernels.h"

#include <algorithm>
#include <array>

namespace tamble::common::response {

namespace {

void sumBlock(const std::vector<const double *> &curves, std::size_t first, std::size_t count, double *sum)
{
    const ResponseKernels &kernels = responseKernels();
    std::fill_n(sum, blockSize, 0.0);
    std::size_t i = 0;
    for (; i + 4 <= curves.size(); i += 4) {
        const std::array four{curves[i] + first, curves[i + 1] + first, curves[i + 2] + first, curves[i + 3] + first};
        kernels.addFour(four.data(), count, sum);
    }
    for (; i < curves.size(); ++i)
        kernels.add(curves[i] + first, count, sum);
}

} // namespace

void CurveSum::sum(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models, std::size_t size,
                   FilterResponse &result)
{
    m_levels.clear();
    m_phases.clear();
    for (std::size_t i = 0; i < curves.size(); ++i) {
        if (!models[i].hasFlatLevel())
            m_levels.push_back(curves[i].magnitude.data());
        if (!models[i].isFlat())
            m_phases.push_back(curves[i].phase.data());
    }

    const ResponseKernels &kernels = responseKernels();
    result.magnitude.resize(size);
    result.phase.resize(size);
    alignas(64) double block[blockSize];
    for (std::size_t first = 0; first < size; first += blockSize) {
        const std::size_t count = std::min(blockSize, size - first);
        sumBlock(m_levels, first, count, block);
        kernels.clampLevels(block);
        std::copy_n(block, count, result.magnitude.data() + first);
        sumBlock(m_phases, first, count, block);
        kernels.wrapPhases(block);
        std::copy_n(block, count, result.phase.data() + first);
    }
}

} // namespace tamble::common::response
