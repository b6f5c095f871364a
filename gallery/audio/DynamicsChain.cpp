#include "DynamicsChain.h"

#include "Decibels.h"

#include <algorithm>
#include <cmath>

namespace {

/// Part of the distance that a follower with this time constant covers per sample.
double followFactor(double timeMs, double sampleRate)
{
    return timeMs > 0.0 ? 1.0 - std::exp(-1000.0 / (timeMs * sampleRate)) : 1.0;
}

} // namespace

DynamicsReading DynamicsChain::process(std::span<const float> samples, int channels, int channel)
{
    const double attack = followFactor(m_settings.attackMs, m_sampleRate);
    const double release = followFactor(m_settings.releaseMs, m_sampleRate);
    double loudest = 0.0;
    for (auto i = std::size_t(channel); i < samples.size(); i += std::size_t(channels)) {
        const double magnitude = std::isfinite(samples[i]) ? std::abs(double(samples[i])) : 0.0;
        m_envelope += (magnitude > m_envelope ? attack : release) * (magnitude - m_envelope);
        loudest = std::max(loudest, m_envelope);
    }
    const double floor = m_settings.fullScale + floorDb;
    const double input = m_settings.fullScale + amplitudeToDb(loudest);
    const double gain = m_settings.curve.gain(input);
    return {input, std::max(input + gain, floor), gain};
}
