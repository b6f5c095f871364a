#include "BlockLevels.h"

#include "Decibels.h"

#include <algorithm>
#include <cmath>

void measureLevels(std::span<const float> samples, std::span<BlockLevel> levels)
{
    const std::size_t channels = levels.size();
    for (std::size_t channel = 0; channel < channels; ++channel) {
        float peak = 0.0F;
        double squares = 0.0;
        for (std::size_t i = channel; i < samples.size(); i += channels) {
            const float magnitude = std::isfinite(samples[i]) ? std::abs(samples[i]) : 0.0F;
            peak = std::max(peak, magnitude);
            squares += double(magnitude) * double(magnitude);
        }
        const auto frames = double(std::max<std::size_t>(samples.size() / channels, 1));
        levels[channel] = {amplitudeToDb(double(peak)), powerToDb(squares / frames)};
    }
}
