#include "response/LevelProduct.h"

#include "response/RecordModel.h"
#include "response/ResponseKernels.h"

#include <algorithm>
#include <iterator>

namespace tamble::common::response {

void LevelProduct::evaluate(const std::vector<RecordModel> &models, FrequencyGrid &grid, std::vector<double> &level)
{
    m_sections.clear();
    m_taps.clear();
    for (const RecordModel &model : models) {
        if (model.hasFlatLevel())
            continue;
        if (model.kind() == RecordModel::Kind::Taps)
            m_taps.push_back(&model);
        else
            std::copy_n(model.chain().sections.begin(), model.chain().count, std::back_inserter(m_sections));
    }
    if (m_sections.size() % 2 != 0)
        m_sections.emplace_back();

    const ResponseKernels &kernels = responseKernels();
    level.resize(grid.size());
    if (m_sections.empty() && m_taps.empty()) {
        std::fill(level.begin(), level.end(), 0.0);
        return;
    }
    BlockResponse product;
    BlockResponse factor;
    alignas(64) double levels[blockSize];
    for (std::size_t first = 0; first < level.size(); first += blockSize) {
        std::fill(std::begin(product.numerator), std::end(product.numerator), 1.0);
        std::fill(std::begin(product.denominator), std::end(product.denominator), 1.0);
        multiplySections(grid.tangents().data() + first, product);
        for (const RecordModel *model : m_taps) {
            model->evaluate(grid, first, factor);
            kernels.reduce(product);
            kernels.multiplyResponse(factor, product);
        }
        kernels.level(product, levels);
        std::copy_n(levels, std::min(blockSize, level.size() - first), level.data() + first);
    }
}

void LevelProduct::multiplySections(const double *tangents, BlockResponse &product) const
{
    const ResponseKernels &kernels = responseKernels();
    for (std::size_t i = 0; i < m_sections.size(); i += 2) {
        if (i % 4 == 0 && i > 0)
            kernels.reduce(product);
        kernels.multiplyPowers(m_sections[i], m_sections[i + 1], tangents, product);
    }
}

} // namespace tamble::common::response
