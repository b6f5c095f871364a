#include "response/MinimumPhase.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tamble::common::response {

namespace {

// Zeros on the unit circle have no logarithm; they are filled up to -120 dB.
constexpr double lowestMagnitude = 1e-6;

} // namespace

void MinimumPhase::convert(std::span<const double> half, std::size_t count, std::vector<double> &taps)
{
    // Long enough that the cepstrum, which does not end, folds back next to nothing.
    const std::size_t size = std::clamp<std::size_t>(std::bit_ceil(64 * count), 1u << 12, 1u << 18);
    const std::size_t middle = size / 2;
    m_fourier.resize(size);
    m_signal.assign(size, 0.0);
    m_spectrum.resize(middle + 1);

    // Around time 0 the symmetric taps have a real spectrum.
    m_signal[0] = half[0];
    for (std::size_t m = 1; m < half.size(); ++m)
        m_signal[m] = m_signal[size - m] = half[m];
    m_fourier.forward(m_signal, m_spectrum);
    for (auto &value : m_spectrum)
        value = std::log(std::max(std::abs(value.real()), lowestMagnitude));

    // The cepstrum of the minimum-phase signal is the causal part, doubled.
    m_fourier.inverse(m_spectrum, m_signal);
    std::for_each(m_signal.begin() + 1, m_signal.begin() + static_cast<std::ptrdiff_t>(middle),
                  [](double &value) { value *= 2; });
    std::fill(m_signal.begin() + static_cast<std::ptrdiff_t>(middle) + 1, m_signal.end(), 0.0);
    m_fourier.forward(m_signal, m_spectrum);
    for (auto &value : m_spectrum)
        value = std::polar(std::exp(value.real()), value.imag());

    m_fourier.inverse(m_spectrum, m_signal);
    taps.assign(m_signal.begin(), m_signal.begin() + static_cast<std::ptrdiff_t>(count));
}

} // namespace tamble::common::response
