#include "fader/FaderTravel.h"

#include "fader/TransferTable.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

// Growth per dB of the exponential law 0.6881389342 · e^(0.0386727493 · level) that the meter's fader marker follows.
// The factor in front cancels out between the ends of a travel.
constexpr double growthPerDb = 0.0386727493;

// Rounded levels are decimals such as -9.7; this drops what adding binary steps leaves behind them.
constexpr double noiseGrid = 1e9;

double withoutNoise(double level)
{
    const double rounded = std::round(level * noiseGrid) / noiseGrid;
    return std::isfinite(rounded) ? rounded : level;
}

double exponentialSpan(const FaderTravel &travel)
{
    return std::expm1(growthPerDb * (travel.to - travel.from));
}

// A law that cannot spread this range falls back to the linear one: tables run upwards, and the exponential law
// overflows beyond 18000 dB.
FaderLaw lawInForce(const FaderTravel &travel)
{
    const bool works = travel.law == FaderLaw::Table         ? travel.from < travel.to
                       : travel.law == FaderLaw::Exponential ? std::isfinite(exponentialSpan(travel))
                                                             : true;
    return works ? travel.law : FaderLaw::Linear;
}

} // namespace

bool FaderTravel::isUsable() const
{
    return std::isfinite(from) && std::isfinite(to) && std::isfinite(to - from) && from != to;
}

bool FaderTravel::contains(double level) const
{
    return level >= std::min(from, to) && level <= std::max(from, to);
}

double FaderTravel::limited(double level) const
{
    if (!isUsable() || std::isnan(level))
        return from;
    return std::clamp(level, std::min(from, to), std::max(from, to));
}

double FaderTravel::position(double level) const
{
    if (!isUsable())
        return 0.0;
    const double inside = limited(level);
    double place = 0.0;
    switch (lawInForce(*this)) {
    case FaderLaw::Table:
        place = positionByTable(inside, from, to);
        break;
    case FaderLaw::Exponential:
        place = std::expm1(growthPerDb * (inside - from)) / exponentialSpan(*this);
        break;
    case FaderLaw::Linear:
        place = common::lin2lin(inside, from, to, 0.0, 1.0);
        break;
    }
    return std::clamp(place, 0.0, 1.0);
}

double FaderTravel::level(double position) const
{
    if (!isUsable() || !(position > 0.0))
        return from;
    if (position >= 1.0)
        return to;
    switch (lawInForce(*this)) {
    case FaderLaw::Table:
        return limited(levelByTable(position, from, to));
    case FaderLaw::Exponential:
        return limited(from + std::log1p(position * exponentialSpan(*this)) / growthPerDb);
    case FaderLaw::Linear:
        break;
    }
    return limited(common::lin2lin(position, 0.0, 1.0, from, to));
}

double FaderTravel::rounded(double level, double step) const
{
    const double inside = limited(level);
    const double size = std::abs(step);
    if (!isUsable() || !(size > 0.0) || !std::isfinite(size))
        return inside;
    const double below = limited(withoutNoise(from + std::round((inside - from) / size) * size));
    // The far end counts as a step of its own when the range holds no whole number of them.
    return std::abs(to - inside) < std::abs(below - inside) ? to : below;
}

double FaderTravel::stepped(double level, double delta) const
{
    return limited(withoutNoise(level + delta));
}

double FaderTravel::held(double level, double position, const QList<double> &detents, double reach) const
{
    double nearest = reach;
    double result = level;
    for (const double detent : detents) {
        const double distance = std::abs(this->position(detent) - position);
        if (contains(detent) && distance <= nearest) {
            nearest = distance;
            result = detent;
        }
    }
    return result;
}

} // namespace tamble::client
