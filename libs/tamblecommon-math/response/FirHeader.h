#pragma once

#include "CalculationItem.h"

namespace tamble::common::response {

/// Rewrites the header of a record to describe the taps in force at a usable sample rate in Hz.
///
/// A text of the user's own stays where the taps are given as a list. Nothing is written when the header is right.
void updateHeader(FIRFilter &filter, double sampleRate);

} // namespace tamble::common::response
