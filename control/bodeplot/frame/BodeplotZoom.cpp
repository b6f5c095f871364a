#include "bodeplot/frame/BodeplotZoom.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <cmath>

namespace tamble::client {

namespace {

double clampToOutermost(double frequencyHz, const FrequencyZoom &zoom)
{
    return clampToBounds(frequencyHz, zoom.outermost.minimum, zoom.outermost.maximum);
}

VisibleRange levelsMoved(const VisibleRange &range, double step, const LevelZoom &zoom)
{
    return {clampToBounds(range.minimum - step, -zoom.maximumBound, -zoom.minimumBound),
            clampToBounds(range.maximum + step, zoom.minimumBound, zoom.maximumBound)};
}

} // namespace

double clampToBounds(double value, double low, double high)
{
    if (value < low)
        return low;
    return value > high ? high : value;
}

VisibleRange levelsZoomedIn(const VisibleRange &range, const LevelZoom &zoom)
{
    return levelsMoved(range, -zoom.step, zoom);
}

VisibleRange levelsZoomedOut(const VisibleRange &range, const LevelZoom &zoom)
{
    return levelsMoved(range, zoom.step, zoom);
}

double spanInDecades(const VisibleRange &range)
{
    return std::log10(range.maximum) - std::log10(range.minimum);
}

VisibleRange frequenciesZoomedIn(const VisibleRange &range, const FrequencyZoom &zoom)
{
    return {clampToOutermost(range.minimum * zoom.factor, zoom), clampToOutermost(range.maximum / zoom.factor, zoom)};
}

VisibleRange frequenciesZoomedOut(const VisibleRange &range, const FrequencyZoom &zoom)
{
    return {clampToOutermost(range.minimum / zoom.factor, zoom), clampToOutermost(range.maximum * zoom.factor, zoom)};
}

bool isZoomed(const VisibleRange &range, const FrequencyZoom &zoom)
{
    return range != zoom.outermost;
}

VisibleRange frequenciesPanned(const VisibleRange &current, const PanAnchor &anchor, double xPixel, double width,
                               const FrequencyZoom &zoom)
{
    const double distance = std::abs(xPixel - anchor.xPixel);
    const double reached = common::lin2log(distance, 0.0, width, anchor.range.minimum, anchor.range.maximum);

    VisibleRange panned = current;
    if (xPixel > anchor.xPixel)
        panned.minimum = clampToOutermost(anchor.range.minimum / (reached / anchor.range.minimum), zoom);
    else if (current.maximum != zoom.outermost.maximum)
        panned.minimum = clampToOutermost(reached, zoom);
    panned.maximum = clampToOutermost(panned.minimum / anchor.range.minimum * anchor.range.maximum, zoom);
    return panned;
}

bool touchesOutermost(const VisibleRange &range, const FrequencyZoom &zoom)
{
    return range.minimum == zoom.outermost.minimum || range.maximum == zoom.outermost.maximum;
}

} // namespace tamble::client
