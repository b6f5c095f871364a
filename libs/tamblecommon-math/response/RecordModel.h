#pragma once

#include "CalculationItem.h"
#include "response/FirTaps.h"
#include "response/FrequencyGrid.h"
#include "response/ResponseKernels.h"
#include "response/Section.h"

#include <optional>

namespace tamble::common::response {

/// A record in the form that the kernels take: sections, taps or nothing.
class RecordModel
{
public:
    enum class Kind { Unknown, Flat, Sections, Taps };

    /// Takes over a record at the grid's sample rate; null and unknown records are flat. The header of an FIR record is
    /// rewritten. Returns whether the response at a given frequency may have changed since the last call.
    bool update(CalculationItem *record, const FrequencyGrid &grid);

    Kind kind() const { return m_kind; }
    bool isFlat() const { return m_kind == Kind::Flat; }

    /// Whether the level is 0 dB at all frequencies.
    bool hasFlatLevel() const { return isFlat() || (m_kind == Kind::Sections && m_chain.allPass); }

    const SectionChain &chain() const { return m_chain; }

    /// Evaluates the block of points that begins at `first`, for a model that is not flat.
    void evaluate(FrequencyGrid &grid, std::size_t first, BlockResponse &block) const;

private:
    bool setKind(Kind kind);
    bool setChain(const SectionChain &chain);
    bool setTaps(const FIRFilter &filter, double sampleRate);

    Kind m_kind = Kind::Unknown;
    SectionChain m_chain;
    std::optional<FirTaps> m_taps; // Of a record that is or was an FIR filter.
};

} // namespace tamble::common::response
