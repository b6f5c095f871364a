#include "RealTransform.h"

#include <kissfft/kiss_fftr.h>

static_assert(sizeof(kiss_fft_cpx) == sizeof(std::complex<float>), "bins are written as two floats");

void RealTransform::Free::operator()(kiss_fftr_state *state) const
{
    kiss_fftr_free(state);
}

RealTransform::RealTransform(std::size_t size)
    : m_size(size)
    , m_state(kiss_fftr_alloc(int(size), 0, nullptr, nullptr))
    , m_bins(size / 2 + 1)
{}

std::span<const std::complex<float>> RealTransform::transform(std::span<const float> samples)
{
    kiss_fftr(m_state.get(), samples.data(), reinterpret_cast<kiss_fft_cpx *>(m_bins.data()));
    return m_bins;
}
