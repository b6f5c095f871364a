#pragma once

#include <kissfft/kissfft.hh>

#include <complex>
#include <cstddef>
#include <span>
#include <vector>

namespace tamble::common::response {

/// The discrete Fourier transform of real signals of an even length.
class RealFourier
{
public:
    using Complex = std::complex<double>;

    /// Prepares for signals of `size` values, an even number from 4. Nothing happens if it is the last size.
    void resize(std::size_t size);

    /// spectrum[k] = sum of signal[m] exp(-2 pi j k m / size) for k = 0 .. size / 2.
    void forward(std::span<const double> signal, std::span<Complex> spectrum) const;

    /// The signal that has this spectrum.
    void inverse(std::span<const Complex> spectrum, std::span<double> signal);

private:
    kissfft<double> m_forward{2, false}; // of half the length, which is what it takes for real signals
    kissfft<double> m_backward{4, true};
    std::vector<Complex> m_mirrored; // the spectrum of both signs
    std::vector<Complex> m_signal;
};

} // namespace tamble::common::response
