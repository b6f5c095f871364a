#include "response/RecordModel.h"

#include "response/CrossoverSections.h"
#include "response/EqSections.h"
#include "response/FirHeader.h"
#include "response/ParameterRules.h"

#include <utility>

namespace tamble::common::response {

bool RecordModel::update(CalculationItem *record, const FrequencyGrid &grid)
{
    const double sampleRate = grid.key().sampleRate;
    auto *fir = dynamic_cast<FIRFilter *>(record);
    if (fir && isUsableSampleRate(sampleRate))
        updateHeader(*fir, sampleRate);

    if (!grid.isUsable())
        return setKind(Kind::Flat);
    if (const auto *eq = dynamic_cast<const EqFilter *>(record))
        return setChain(eqSections(*eq, sampleRate));
    if (const auto *asymmetric = dynamic_cast<const AsymmetricEqFilter *>(record))
        return setChain(asymmetricSections(*asymmetric, sampleRate));
    if (const auto *crossover = dynamic_cast<const XOverFilter *>(record))
        return setChain(crossoverSections(*crossover, sampleRate));
    if (fir && !fir->bypass)
        return setTaps(*fir, sampleRate);
    return setKind(Kind::Flat);
}

void RecordModel::evaluate(FrequencyGrid &grid, std::size_t first, BlockResponse &block) const
{
    const ResponseKernels &kernels = responseKernels();
    if (m_kind == Kind::Taps) {
        const FrequencyGrid::Angles &all = grid.angles();
        const BlockAngles angles{all.cosHalf.data() + first, all.sinHalf.data() + first, all.cosSixteen.data() + first,
                                 all.sinSixteen.data() + first};
        const std::vector<double> &values = m_taps->groupValues();
        const auto taps = m_taps->isSymmetric() ? kernels.symmetricTaps : kernels.taps;
        taps(values.data(), values.size() / tapGroup, angles, block);
        return;
    }
    const double *tangents = grid.tangents().data() + first;
    if (m_chain.count == 1)
        kernels.oneSection(m_chain.sections[0], tangents, block);
    else
        kernels.twoSections(m_chain.sections[0], m_chain.sections[1], tangents, block);
}

bool RecordModel::setKind(Kind kind)
{
    return std::exchange(m_kind, kind) != kind;
}

bool RecordModel::setChain(const SectionChain &chain)
{
    if (chain.count == 0)
        return setKind(Kind::Flat);
    const bool chainChanged = chain != m_chain;
    m_chain = chain;
    return setKind(Kind::Sections) || chainChanged;
}

bool RecordModel::setTaps(const FIRFilter &filter, double sampleRate)
{
    if (!m_taps)
        m_taps.emplace();
    const bool tapsChanged = m_taps->update(filter, sampleRate);
    return setKind(Kind::Taps) || tapsChanged;
}

} // namespace tamble::common::response
