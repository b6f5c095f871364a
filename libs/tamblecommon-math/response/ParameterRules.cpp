#include "response/ParameterRules.h"

#include <algorithm>
#include <cmath>

namespace tamble::common::response {

namespace {

double usable(double value, double fallback, double lowest, double highest)
{
    return std::clamp(std::isnan(value) ? fallback : value, lowest, highest);
}

} // namespace

bool isUsableSampleRate(double sampleRate)
{
    return std::isfinite(sampleRate) && sampleRate >= 1;
}

double usableCorner(double frequency, double sampleRate)
{
    return usable(frequency, 20, 0.01, 0.499 * sampleRate);
}

double usableQuality(double quality)
{
    return usable(quality, 1, 0.05, 1000);
}

double usableGain(double gain)
{
    return usable(gain, 0, -120, 120);
}

} // namespace tamble::common::response
