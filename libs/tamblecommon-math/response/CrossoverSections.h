#pragma once

#include "CalculationItem.h"
#include "response/Section.h"

namespace tamble::common::response {

/// The sections of one side of a crossover at a usable sample rate in Hz; none when it is bypassed, is a through or has
/// a type without a meaning.
SectionChain crossoverSections(const XOverFilter &filter, double sampleRate);

} // namespace tamble::common::response
