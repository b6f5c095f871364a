#include "bodeplot/handles/HandleRules.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

using tamble::common::EqType;
using tamble::common::FilterSlope;
using tamble::common::lin2lin;
using tamble::common::log2lin;

namespace {

// The two limits differ on purpose: a boost endangers loudspeakers, a cut does not.
constexpr double highestHandleLevel = 12.0;
constexpr double lowestHandleLevel = -18.0;

constexpr double lowestQuality = 0.4;
constexpr double pixelsToLimit = 200.0;

} // namespace

double handleX(double frequencyHz, const PlotAxes &axes)
{
    if (frequencyHz >= axes.x.from && frequencyHz <= axes.x.to)
        return log2lin(frequencyHz, axes.x.from, axes.x.to, 0.0, 1.0);
    return frequencyHz > axes.x.to ? behindFrame : beforeFrame;
}

double handleY(double levelDb, const PlotAxes &axes)
{
    if (levelDb >= axes.y.from && levelDb <= axes.y.to)
        return lin2lin(levelDb, axes.y.from, axes.y.to, 1.0, 0.0);
    return levelDb < axes.y.from ? behindFrame : beforeFrame;
}

double limitedHandleY(double y, const PlotAxes &axes)
{
    // A frame that runs backwards has its +12 dB below its -18 dB.
    const double top = lin2lin(highestHandleLevel, axes.y.from, axes.y.to, 1.0, 0.0);
    const double bottom = lin2lin(lowestHandleLevel, axes.y.from, axes.y.to, 1.0, 0.0);
    return std::clamp(y, std::min(top, bottom), std::max(top, bottom));
}

std::optional<double> qualityLimit(EqType type, FilterSlope slope)
{
    switch (type) {
    case EqType::Peaking:
    case EqType::Notch:
        return 40.0;
    case EqType::AllPass:
    case EqType::LowShelfQ:
    case EqType::HighShelfQ:
        return 2.0;
    case EqType::HighPass:
    case EqType::LowPass:
        return slope == FilterSlope::TwelveDb ? std::optional(2.0) : std::nullopt;
    default:
        return std::nullopt;
    }
}

double draggedQuality(double baseQuality, double change, double upperLimit)
{
    double quality = std::isfinite(baseQuality) ? baseQuality : lowestQuality;
    if (change > 0.0)
        quality += lin2lin(change, 0.0, pixelsToLimit, 0.0, std::abs(upperLimit - quality));
    else if (change < 0.0)
        quality -= lin2lin(-change, 0.0, pixelsToLimit, 0.0, std::abs(lowestQuality - quality));
    return std::clamp(quality, lowestQuality, upperLimit);
}

} // namespace tamble::client
