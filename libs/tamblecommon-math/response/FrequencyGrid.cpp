#include "response/FrequencyGrid.h"

#include "response/ParameterRules.h"
#include "response/ResponseKernels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamble::common::response {

namespace {

bool isUsableFrequency(double frequency)
{
    return std::isfinite(frequency) && frequency > 0;
}

double logarithmOfRatio(double highest, double lowest)
{
    const double ratio = highest / lowest;
    return std::isnormal(ratio) ? std::log(ratio) : std::log(highest) - std::log(lowest);
}

} // namespace

bool FrequencyGrid::isUsable() const
{
    return isUsableSampleRate(m_key.sampleRate) && isUsableFrequency(m_key.lowest) && isUsableFrequency(m_key.highest);
}

std::size_t FrequencyGrid::size() const
{
    return static_cast<std::size_t>(std::clamp(m_key.resolution, 0, mostPoints));
}

std::size_t FrequencyGrid::paddedSize() const
{
    return (size() + blockSize - 1) / blockSize * blockSize;
}

void FrequencyGrid::rebuild(const Key &key)
{
    m_key = key;
    m_angles.cosHalf.clear();
    m_ratios.clear();
    m_tangents.clear();
    if (!isUsable() || size() == 0)
        return;

    m_ratios.resize(paddedSize());
    m_tangents.resize(paddedSize());
    const std::size_t last = size() - 1;
    const double step = last > 0 ? logarithmOfRatio(key.highest, key.lowest) / static_cast<double>(last) : 0;
    const auto ratioAt = [&key](double frequency) { return std::min(frequency / key.sampleRate, 0.5); };
    for (std::size_t i = 0; i < last; ++i)
        m_ratios[i] = ratioAt(key.lowest * std::exp(static_cast<double>(i) * step));
    // Both ends are exact.
    m_ratios[last] = ratioAt(key.highest);
    m_ratios[0] = ratioAt(key.lowest);
    std::fill(m_ratios.begin() + static_cast<std::ptrdiff_t>(size()), m_ratios.end(), m_ratios[last]);

    std::transform(m_ratios.begin(), m_ratios.end(), m_tangents.begin(),
                   [](double ratio) { return std::tan(std::numbers::pi * ratio); });
}

const FrequencyGrid::Angles &FrequencyGrid::angles()
{
    if (m_angles.cosHalf.size() == m_ratios.size())
        return m_angles;

    for (auto *table : {&m_angles.cosHalf, &m_angles.sinHalf, &m_angles.cosSixteen, &m_angles.sinSixteen})
        table->resize(m_ratios.size());
    for (std::size_t i = 0; i < m_ratios.size(); ++i) {
        const double half = std::numbers::pi * m_ratios[i];
        m_angles.cosHalf[i] = std::cos(half);
        m_angles.sinHalf[i] = std::sin(half);
        m_angles.cosSixteen[i] = std::cos(32 * half);
        m_angles.sinSixteen[i] = std::sin(32 * half);
    }
    return m_angles;
}

} // namespace tamble::common::response
