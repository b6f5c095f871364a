#include "response/RealFourier.h"

namespace tamble::common::response {

void RealFourier::resize(std::size_t size)
{
    if (m_signal.size() == size)
        return;
    m_forward.assign(size / 2, false);
    m_backward.assign(size, true);
    m_mirrored.resize(size);
    m_signal.resize(size);
}

void RealFourier::forward(std::span<const double> signal, std::span<Complex> spectrum) const
{
    m_forward.transform_real(signal.data(), spectrum.data());
    // Both real ends of the spectrum come packed into its first value.
    const Complex ends = spectrum.front();
    spectrum.front() = ends.real();
    spectrum.back() = ends.imag();
}

void RealFourier::inverse(std::span<const Complex> spectrum, std::span<double> signal)
{
    const std::size_t size = m_signal.size();
    for (std::size_t k = 0; k <= size / 2; ++k) {
        m_mirrored[k] = spectrum[k];
        m_mirrored[(size - k) % size] = std::conj(spectrum[k]);
    }
    m_backward.transform(m_mirrored.data(), m_signal.data());
    for (std::size_t m = 0; m < size; ++m)
        signal[m] = m_signal[m].real() / static_cast<double>(size);
}

} // namespace tamble::common::response
