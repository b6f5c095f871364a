#include "response/CurveSum.h"

#include "response/RecordModel.h"
#include "response/ResponseKernels.h"

#include <algorithm>
#include <array>

namespace tamble::common::response {

namespace {

// Small enough for a drag among hundreds of curves, and large enough that the usual number needs no groups.
constexpr std::size_t groupSize = 16;

using Curves = std::vector<const double *>;
using Limit = void (*)(double *);

void sumBlock(const Curves &curves, std::size_t first, std::size_t count, double *sum)
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

/// Sums whole curves and brings the sum within its limits, if it has any.
void sumCurves(const Curves &curves, std::size_t size, Limit limit, std::vector<double> &sum)
{
    sum.resize(size);
    alignas(64) double block[blockSize];
    for (std::size_t first = 0; first < size; first += blockSize) {
        const std::size_t count = std::min(blockSize, size - first);
        sumBlock(curves, first, count, block);
        if (limit)
            limit(block);
        std::copy_n(block, count, sum.data() + first);
    }
}

} // namespace

void CurveSum::curveChanged(std::size_t index)
{
    if (index / groupSize < m_groups.size())
        m_groups[index / groupSize].stale = true;
}

void CurveSum::sum(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models, std::size_t size,
                   FilterResponse &result)
{
    if (curves.size() <= groupSize) {
        m_groups.clear();
        gather(curves, models, 0, curves.size());
    } else {
        updateGroups(curves, models, size);
        m_levels.clear();
        m_phases.clear();
        for (const Group &group : m_groups) {
            if (!group.sum.magnitude.empty())
                m_levels.push_back(group.sum.magnitude.data());
            if (!group.sum.phase.empty())
                m_phases.push_back(group.sum.phase.data());
        }
    }
    const ResponseKernels &kernels = responseKernels();
    sumCurves(m_levels, size, kernels.clampLevels, result.magnitude);
    sumCurves(m_phases, size, kernels.wrapPhases, result.phase);
}

void CurveSum::gather(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models,
                      std::size_t first, std::size_t last)
{
    m_levels.clear();
    m_phases.clear();
    for (std::size_t i = first; i < last; ++i) {
        if (!models[i].hasFlatLevel())
            m_levels.push_back(curves[i].magnitude.data());
        if (!models[i].isFlat())
            m_phases.push_back(curves[i].phase.data());
    }
}

void CurveSum::updateGroups(const std::vector<FilterResponse> &curves, const std::vector<RecordModel> &models,
                            std::size_t size)
{
    if (m_count != curves.size())
        m_groups.clear();
    m_count = curves.size();
    m_groups.resize((m_count + groupSize - 1) / groupSize);
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        Group &group = m_groups[i];
        if (!group.stale)
            continue;
        group.stale = false;
        gather(curves, models, i * groupSize, std::min((i + 1) * groupSize, m_count));
        sumCurves(m_levels, m_levels.empty() ? 0 : size, nullptr, group.sum.magnitude);
        sumCurves(m_phases, m_phases.empty() ? 0 : size, nullptr, group.sum.phase);
    }
}

} // namespace tamble::common::response
