#include "Biquad.h"

#include <cmath>

bool BiquadCoefficients::isStable() const
{
    // The triangle of stable denominators; comparisons with not-a-number fail.
    return std::isfinite(b0) && std::isfinite(b1) && std::isfinite(b2) && std::abs(a2) < 1.0 && std::abs(a1) < 1.0 + a2;
}

void Biquad::setCoefficients(const BiquadCoefficients &coefficients)
{
    m_coefficients = coefficients.isStable() ? coefficients : BiquadCoefficients();
}

void Biquad::reset()
{
    m_first = 0.0;
    m_second = 0.0;
}
