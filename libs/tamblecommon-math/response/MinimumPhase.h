#pragma once

#include "response/RealFourier.h"

#include <span>
#include <vector>

namespace tamble::common::response {

/// Turns linear-phase taps into minimum-phase ones with the same magnitude, by the homomorphic method (Oppenheim and
/// Schafer 2010, Discrete-time signal processing). The magnitude agrees within 5e-4 dB above -6 dB, with less latency.
class MinimumPhase
{
public:
    /// `half` are symmetric taps from the middle one outwards; `taps` gets `count` taps.
    void convert(std::span<const double> half, std::size_t count, std::vector<double> &taps);

private:
    RealFourier m_fourier;
    std::vector<double> m_signal;
    std::vector<RealFourier::Complex> m_spectrum;
};

} // namespace tamble::common::response
