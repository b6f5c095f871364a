#pragma once

#include <complex>
#include <memory>
#include <span>
#include <vector>

struct kiss_fftr_state;

/// Discrete Fourier transform of real blocks of one size.
class RealTransform
{
public:
    /// `size` is the number of samples in a block, even.
    explicit RealTransform(std::size_t size);

    /// Number of samples in a block.
    std::size_t size() const { return m_size; }

    /// The bins 0 (constant part) to size/2 (half the sample rate) of `samples`, unscaled; valid until the next call.
    std::span<const std::complex<float>> transform(std::span<const float> samples);

private:
    struct Free
    {
        void operator()(kiss_fftr_state *state) const;
    };

    std::size_t m_size;
    std::unique_ptr<kiss_fftr_state, Free> m_state;
    std::vector<std::complex<float>> m_bins;
};
