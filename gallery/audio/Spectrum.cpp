#include "Spectrum.h"

#include "Decibels.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

namespace {

std::size_t windowSize(double sampleRate)
{
    return std::bit_ceil(std::size_t(std::max(sampleRate / 6.0, 64.0)));
}

/// A Hann window whose sum is 2, so that a full-scale sine gives a bin of magnitude 1.
std::vector<float> hannWindow(std::size_t size)
{
    std::vector<float> window(size);
    for (std::size_t i = 0; i < size; ++i) {
        const double angle = 2.0 * std::numbers::pi * double(i) / double(size);
        window[i] = float((1.0 - std::cos(angle)) * 2.0 / double(size));
    }
    return window;
}

} // namespace

double Spectrum::centreHz(std::size_t index)
{
    return lowestHz * std::pow(highestHz / lowestHz, double(index) / double(bandCount - 1));
}

Spectrum::Spectrum(double sampleRate)
    : m_sampleRate(sampleRate)
    , m_transform(windowSize(sampleRate))
    , m_window(hannWindow(m_transform.size()))
    , m_past(m_transform.size())
    , m_windowed(m_transform.size())
    , m_power(m_transform.size() / 2 + 1)
{}

void Spectrum::process(std::span<const float> samples)
{
    for (const float sample : samples) {
        m_past[m_next] = sample;
        m_next = (m_next + 1) % m_past.size();
    }
    for (std::size_t i = 0; i < m_window.size(); ++i)
        m_windowed[i] = m_window[i] * m_past[(m_next + i) % m_past.size()];

    const double elapsedMs = 1000.0 * double(samples.size()) / m_sampleRate;
    const double share = m_averagingMs > 0.0 ? 1.0 - std::exp(-elapsedMs / m_averagingMs) : 1.0;
    const auto bins = m_transform.transform(m_windowed);
    for (std::size_t i = 0; i < bins.size(); ++i)
        m_power[i] += share * (double(std::norm(bins[i])) - m_power[i]);
}

std::vector<double> Spectrum::levels() const
{
    std::vector<double> levels(bandCount);
    for (std::size_t i = 0; i < levels.size(); ++i)
        levels[i] = powerToDb(bandPower(i));
    return levels;
}

double Spectrum::bandPower(std::size_t band) const
{
    // The low bands are narrower than a bin; reading between the bins at the edges gives them a value all the same.
    const double halfBand = std::sqrt(centreHz(1) / centreHz(0));
    const double binsPerHz = double(m_transform.size()) / m_sampleRate;
    const double from = centreHz(band) / halfBand * binsPerHz;
    const double to = centreHz(band) * halfBand * binsPerHz;
    double power = std::max(powerAt(from), powerAt(to));
    for (auto bin = std::size_t(std::ceil(from)); bin < m_power.size() && double(bin) <= to; ++bin)
        power = std::max(power, m_power[bin]);
    return power;
}

double Spectrum::powerAt(double bin) const
{
    const auto below = std::size_t(bin);
    if (below + 1 >= m_power.size())
        return 0.0;
    return std::lerp(m_power[below], m_power[below + 1], bin - double(below));
}

void Spectrum::reset()
{
    std::fill(m_past.begin(), m_past.end(), 0.0F);
    std::fill(m_power.begin(), m_power.end(), 0.0);
}
