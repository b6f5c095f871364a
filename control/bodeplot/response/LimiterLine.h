#pragma once

#include "scale/PlotAxes.h"

#include <QtCore/QList>
#include <QtCore/QPointF>

namespace tamble::client {

/// What a limiter does to levels in dB.
struct LimiterRule
{
    double threshold = 0.0;
    /// Slope above the threshold is 1 / ratio; 0 is a brick wall. Other ratios below 1 would expand and count as 1.
    double ratio = 0.0;
    bool bypass = false;

    bool operator==(const LimiterRule &) const = default;
};

/// A limiter's line inside a plot frame, as normalised points cut at the frame.
///
/// Over input levels (linear x axis) it is the identity up to the threshold and the limited slope above, or the
/// identity alone while bypassed. Over frequencies (logarithmic x axis) it is a level line at the threshold, or nothing
/// while bypassed. A threshold or ratio that is not a number and a frame that shows nothing give no points.
QList<QPointF> limiterLine(const LimiterRule &rule, const PlotAxes &axes);

/// Normalised place of the handle: on the line at the threshold, over frequencies in the middle; kept inside the frame.
QPointF limiterHandle(const LimiterRule &rule, const PlotAxes &axes);

/// The threshold nearest to a wanted one whose handle is inside the frame. NaN for a frame that shows nothing, or input
/// and output levels without a common part.
double thresholdInside(double wanted, const PlotAxes &axes);

/// A threshold moved by a difference in dB as far as the frame allows; one outside the frame is not moved further out,
/// nor made to jump inside. NaN as above.
double thresholdMovedBy(double threshold, double difference, const PlotAxes &axes);

/// The threshold inside the frame that puts the handle nearest to a normalised point: over frequencies the level of the
/// point, over input levels the mean of its input and output level. NaN as above.
double thresholdNear(const QPointF &normalised, const PlotAxes &axes);

} // namespace tamble::client
