#include "ScaleMappings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>

namespace tamble::common {

namespace {

template <typename... Numbers>
bool allFinite(Numbers... numbers)
{
    return (std::isfinite(numbers) && ...);
}

double finiteOr(double result, double fallback)
{
    return std::isfinite(result) ? result : fallback;
}

constexpr int smallestExponent = -307;
constexpr int largestExponent = 308;
using PowersOfTen = std::array<double, largestExponent - smallestExponent + 1>;

// Read from text, as a literal would be: pow() may miss a power of ten by one ulp, and then 1000 would count as 100.
PowersOfTen readPowersOfTen()
{
    PowersOfTen powers{};
    for (std::size_t i = 0; i < powers.size(); ++i) {
        const std::string text = "1e" + std::to_string(smallestExponent + static_cast<int>(i));
        std::from_chars(text.data(), text.data() + text.size(), powers[i]);
    }
    return powers;
}

} // namespace

double lin2lin(double x, double inMin, double inMax, double outMin, double outMax) noexcept
{
    if (!allFinite(x, inMin, inMax, outMin, outMax) || inMin == inMax)
        return outMin;
    if (x == inMax)
        return outMax;
    // Multiplied before it is divided, so that quotients of small integers hit the halves that callers round.
    return finiteOr(outMin + (x - inMin) * (outMax - outMin) / (inMax - inMin), outMin);
}

double log2lin(double x, double inMin, double inMax, double outMin, double outMax) noexcept
{
    if (!allFinite(x, inMin, inMax, outMin, outMax) || x <= 0 || inMin <= 0 || inMax <= 0 || inMin == inMax)
        return outMin;
    if (x == inMax)
        return outMax;
    return finiteOr(outMin + (outMax - outMin) * std::log(x / inMin) / std::log(inMax / inMin), outMin);
}

double lin2log(double x, double inMin, double inMax, double outMin, double outMax) noexcept
{
    if (!allFinite(x, inMin, inMax, outMin, outMax) || outMin <= 0 || outMax <= 0 || inMin == inMax)
        return outMin;
    if (x == inMax)
        return outMax;
    return finiteOr(outMin * std::pow(outMax / outMin, (x - inMin) / (inMax - inMin)), outMin);
}

double orderOfMagnitude(double x) noexcept
{
    static const PowersOfTen powers = readPowersOfTen();

    if (x == 0 || !std::isfinite(x))
        return 1;
    const auto above = std::upper_bound(powers.begin(), powers.end(), std::abs(x));
    return above == powers.begin() ? powers.front() : *std::prev(above);
}

} // namespace tamble::common
