#pragma once

namespace tamble::client {

/// Visible interval of an axis, in the axis' unit (Hz or dB).
struct VisibleRange
{
    double minimum = 0.0;
    double maximum = 0.0;

    bool operator==(const VisibleRange &) const = default;
};

/// Limits and step of zooming along the level axis, in dB.
struct LevelZoom
{
    double step = 0.0;         ///< How far each bound moves.
    double minimumBound = 0.0; ///< Smallest distance of a bound from 0 dB.
    double maximumBound = 0.0; ///< Largest distance of a bound from 0 dB.
};

/// Limits and factor of zooming and panning along the frequency axis.
struct FrequencyZoom
{
    VisibleRange outermost;          ///< The range that is never left, in Hz.
    double factor = 0.0;             ///< By which a step scales each bound; above 1.
    double minimumLogDistance = 0.0; ///< Spans of so many decades or less are not narrowed further.
};

/// Where a pan started: pointer position in pixels and the range shown at that moment.
struct PanAnchor
{
    double xPixel = 0.0;
    VisibleRange range;
};

/// `value` kept within `low` and `high`; the lower bound is tested first, so reversed bounds are no error.
double clampToBounds(double value, double low, double high);

/// Level range one step narrower.
VisibleRange levelsZoomedIn(const VisibleRange &range, const LevelZoom &zoom);

/// Level range one step wider.
VisibleRange levelsZoomedOut(const VisibleRange &range, const LevelZoom &zoom);

/// Width of a frequency range in decades. Not a number for bounds that are not positive.
double spanInDecades(const VisibleRange &range);

/// Frequency range one step narrower.
VisibleRange frequenciesZoomedIn(const VisibleRange &range, const FrequencyZoom &zoom);

/// Frequency range one step wider.
VisibleRange frequenciesZoomedOut(const VisibleRange &range, const FrequencyZoom &zoom);

/// Whether part of the outermost range is hidden.
bool isZoomed(const VisibleRange &range, const FrequencyZoom &zoom);

/// Frequency range after the pointer moved from `anchor` to `xPixel` over an area `width` pixels wide.
///
/// The ratio of the anchored range is kept unless an end of the outermost range cuts it.
VisibleRange frequenciesPanned(const VisibleRange &current, const PanAnchor &anchor, double xPixel, double width,
                               const FrequencyZoom &zoom);

/// Whether a range touches an end of the outermost range, where a pan starts afresh so that turning back acts at once.
bool touchesOutermost(const VisibleRange &range, const FrequencyZoom &zoom);

} // namespace tamble::client
