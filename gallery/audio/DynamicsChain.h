#pragma once

#include "StaticCurve.h"

#include <span>

/// How a dynamics processor listens and what it does.
struct DynamicsSettings
{
    StaticCurve curve;
    double attackMs = 5.0;    ///< time constant of a rising level; 0 follows at once
    double releaseMs = 150.0; ///< time constant of a falling level; 0 follows at once
    double fullScale = 0.0;   ///< level in dB that full scale has on the curve, such as 20 dBu

    bool operator==(const DynamicsSettings &) const = default;
};

/// What a dynamics processor did with a block, all in dB.
struct DynamicsReading
{
    double inputLevel = 0.0;
    double outputLevel = 0.0;
    double gain = 0.0;

    bool operator==(const DynamicsReading &) const = default;
};

/// A dynamics processor: a peak detector with attack and release before a static curve.
class DynamicsChain
{
public:
    /// `sampleRate` is in Hz.
    explicit DynamicsChain(double sampleRate)
        : m_sampleRate(sampleRate)
    {}

    void setSettings(const DynamicsSettings &settings) { m_settings = settings; }
    const DynamicsSettings &settings() const { return m_settings; }

    /// Listens to `channel` of an interleaved block of `channels` and returns the loudest moment of the block.
    DynamicsReading process(std::span<const float> samples, int channels, int channel);

    /// Forgets the past of the signal.
    void reset() { m_envelope = 0.0; }

private:
    DynamicsSettings m_settings;
    double m_sampleRate;
    double m_envelope = 0.0;
};
