#include "response/FirTaps.h"

#include "response/TapGroups.h"

#include <algorithm>
#include <cmath>

namespace tamble::common::response {

namespace {

// Larger taps are far above the range of levels, and their square would overflow.
constexpr double largestTap = 1e60;

double usableTap(double tap)
{
    return std::isfinite(tap) ? std::clamp(tap, -largestTap, largestTap) : 0.0;
}

// The list of a record without a design, within its order. Without any tap audio passes.
void readList(const FIRFilter &filter, std::vector<double> &list)
{
    list.clear();
    if (!isDesign(filter)) {
        const auto count = std::min(filter.coefficients.size(), static_cast<std::size_t>(usableTaps(filter)));
        list.resize(count);
        std::transform(filter.coefficients.begin(), filter.coefficients.begin() + static_cast<std::ptrdiff_t>(count),
                       list.begin(), usableTap);
    }
    if (list.empty())
        list.push_back(1.0);
}

} // namespace

bool FirTaps::update(const FIRFilter &filter, double sampleRate)
{
    const auto design = firDesign(filter, sampleRate);
    if (design)
        m_nextList.clear();
    else
        readList(filter, m_nextList);
    if (m_isComputed && design == m_design && m_nextList == m_list)
        return false;

    m_design = design;
    m_list.swap(m_nextList);
    compute();
    m_isComputed = true;
    return true;
}

void FirTaps::compute()
{
    if (!m_design) {
        groupTaps(m_list, m_groupValues);
        return;
    }
    computeHalf(*m_design, m_half);
    if (m_design->minimumPhase) {
        m_minimumPhase.convert(m_half, static_cast<std::size_t>(m_design->taps), m_taps);
    } else {
        m_taps.assign(m_half.begin(), m_half.end());
        std::for_each(m_taps.begin() + 1, m_taps.end(), [](double &tap) { tap *= 2; });
    }
    groupTaps(m_taps, m_groupValues);
}

} // namespace tamble::common::response
