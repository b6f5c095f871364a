#include "bodeplot/handles/HandleRules.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

using tamble::common::lin2lin;
using tamble::common::lin2log;
using tamble::common::log2lin;

namespace {

// The two limits differ on purpose: a boost endangers loudspeakers, a cut does not.
constexpr double highestHandleLevel = 12.0;
constexpr double lowestHandleLevel = -18.0;

constexpr double lowestQuality = 0.4;
constexpr double pixelsToLimit = 200.0;

} // namespace

double handleX(double frequencyHz, const HandleFrame &frame)
{
    if (frequencyHz >= frame.xMinimum && frequencyHz <= frame.xMaximum)
        return log2lin(frequencyHz, frame.xMinimum, frame.xMaximum, 0.0, 1.0);
    return frequencyHz > frame.xMaximum ? behindFrame : beforeFrame;
}

double handleY(double levelDb, const HandleFrame &frame)
{
    if (levelDb >= frame.yMinimum && levelDb <= frame.yMaximum)
        return lin2lin(levelDb, frame.yMinimum, frame.yMaximum, 1.0, 0.0);
    return levelDb < frame.yMinimum ? behindFrame : beforeFrame;
}

double frequencyAt(double x, const HandleFrame &frame)
{
    return lin2log(x, 0.0, 1.0, frame.xMinimum, frame.xMaximum);
}

double levelAt(double y, const HandleFrame &frame)
{
    return lin2lin(y, 1.0, 0.0, frame.yMinimum, frame.yMaximum);
}

double limitedHandleY(double y, const HandleFrame &frame)
{
    // A frame that runs backwards has its +12 dB below its -18 dB.
    const double top = lin2lin(highestHandleLevel, frame.yMinimum, frame.yMaximum, 1.0, 0.0);
    const double bottom = lin2lin(lowestHandleLevel, frame.yMinimum, frame.yMaximum, 1.0, 0.0);
    return std::clamp(y, std::min(top, bottom), std::max(top, bottom));
}

std::optional<double> qualityLimit(int eqType, int slope)
{
    switch (eqType) {
    case 0: // peaking
    case 9: // notch
        return 40.0;
    case 5:  // all pass
    case 10: // shelves with Q
    case 11:
        return 2.0;
    case 3: // high and low pass: only the 12 dB ones have a Q
    case 4:
        return slope == 2 ? std::optional(2.0) : std::nullopt;
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
