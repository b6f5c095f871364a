#pragma once

#include "CalculationItem.h"
#include "response/FirDesign.h"
#include "response/MinimumPhase.h"

#include <optional>
#include <vector>

namespace tamble::common::response {

/// The taps of an FIR record, in groups as ResponseKernels::taps takes them.
///
/// They are valid as long as the record's design, or else its list, is the one they were made from.
class FirTaps
{
public:
    /// Brings the taps up to date with a record at a usable sample rate in Hz and returns whether they changed.
    bool update(const FIRFilter &filter, double sampleRate);

    /// Whether the taps are one half of symmetric ones, whose response is the real part of that of the half.
    bool isSymmetric() const { return m_design && !m_design->minimumPhase; }

    const std::vector<double> &groupValues() const { return m_groupValues; }

private:
    void compute();

    std::optional<FirDesign> m_design;
    std::vector<double> m_list; // As it was given, without a design.
    std::vector<double> m_nextList;
    std::vector<double> m_half;
    std::vector<double> m_taps;
    std::vector<double> m_groupValues;
    MinimumPhase m_minimumPhase;
    bool m_isComputed = false;
};

} // namespace tamble::common::response
