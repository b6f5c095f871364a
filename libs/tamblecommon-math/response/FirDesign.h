#pragma once

#include "CalculationItem.h"

#include <optional>
#include <vector>

namespace tamble::common::response {

/// Most taps that an FIR record is evaluated with.
constexpr int mostTaps = 32768;

/// A windowed band, from which taps are computed. Frequencies are fractions of half the sample rate.
struct FirDesign
{
    bool minimumPhase = false;
    int taps =
        0; ///< From 3; an even number has a last tap of 0, as an even symmetric length cannot pass half the rate.
    double lo = 0;
    double hi = 1;
    double reference = 0;   ///< Where the gain is exactly 0 dB.
    double windowShape = 0; ///< Kaiser's beta.

    bool operator==(const FirDesign &) const = default;
};

/// The taps that a record has: from its order, within 0 .. mostTaps.
int usableTaps(const FIRFilter &filter);

/// Whether the type and the flag of a record ask for computed taps.
bool isDesign(const FIRFilter &filter);

/// The design of a record at a usable sample rate in Hz. Empty when its taps are given as a list or too few.
std::optional<FirDesign> firDesign(const FIRFilter &filter, double sampleRate);

/// The symmetric taps of a design from the middle one outwards.
///
/// An ideal band cut off by Kaiser's window (Kaiser 1974, Nonrecursive digital filter design using the I0-sinh window
/// function). A corner that the taps can resolve is at -6.02 dB.
void computeHalf(const FirDesign &design, std::vector<double> &half);

} // namespace tamble::common::response
