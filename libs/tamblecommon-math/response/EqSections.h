#pragma once

#include "CalculationItem.h"
#include "response/Section.h"

namespace tamble::common::response {

/// The sections of an equaliser band at a usable sample rate in Hz; none for a band that is bypassed, has gain 0 or a
/// type without a meaning.
SectionChain eqSections(const EqFilter &filter, double sampleRate);

/// The same for a band with two corners: a high shelf at the lower corner, taken back by one at the upper corner.
///
/// The pairs of corner and Q may come in either order. The plateau between the corners reaches the gain when they are a
/// few octaves apart.
SectionChain asymmetricSections(const AsymmetricEqFilter &filter, double sampleRate);

} // namespace tamble::common::response
