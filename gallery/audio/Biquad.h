#pragma once

/// Coefficients of y[n] = b0·x[n] + b1·x[n−1] + b2·x[n−2] − a1·y[n−1] − a2·y[n−2]. The default passes the signal on.
struct BiquadCoefficients
{
    double b0 = 1.0;
    double b1 = 0.0;
    double b2 = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;

    bool operator==(const BiquadCoefficients &) const = default;

    /// All five are numbers and both poles lie inside the unit circle.
    bool isStable() const;
};

/// One second-order filter section with its memory.
class Biquad
{
public:
    /// A section that `coefficients` describe; unstable ones pass the signal on instead.
    explicit Biquad(const BiquadCoefficients &coefficients = {}) { setCoefficients(coefficients); }

    /// Exchanges the coefficients and keeps the memory, so that a filter can be tuned while it runs.
    void setCoefficients(const BiquadCoefficients &coefficients);

    /// Filters one sample.
    double process(double sample)
    {
        const double result = m_coefficients.b0 * sample + m_first;
        m_first = m_coefficients.b1 * sample - m_coefficients.a1 * result + m_second;
        m_second = m_coefficients.b2 * sample - m_coefficients.a2 * result;
        return result;
    }

    /// Forgets the past of the signal.
    void reset();

private:
    BiquadCoefficients m_coefficients;
    double m_first = 0.0;
    double m_second = 0.0;
};
