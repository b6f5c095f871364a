#pragma once

#include <cmath>
#include <numbers>
#include <vector>

/// `frames` samples of a sine that begins at 0.
inline std::vector<float> sine(double amplitude, double frequencyHz, double sampleRate, std::size_t frames)
{
    std::vector<float> samples(frames);
    for (std::size_t i = 0; i < frames; ++i)
        samples[i] = float(amplitude * std::sin(2.0 * std::numbers::pi * frequencyHz * double(i) / sampleRate));
    return samples;
}
