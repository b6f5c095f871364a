#include "bodeplot/response/LimiterLine.h"

#include "scenegraph/FrameClip.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace tamble::client {

namespace {

double limitedLevel(const LimiterRule &rule, double level)
{
    if (rule.bypass || level <= rule.threshold)
        return level;
    const double slope = rule.ratio == 0.0 ? 0.0 : 1.0 / std::max(rule.ratio, 1.0);
    return rule.threshold + (level - rule.threshold) * slope;
}

bool isOverFrequencies(const PlotAxes &axes)
{
    return axes.x.scale == AxisScale::Logarithmic;
}

/// The line in axis units, from the left edge of the frame to the right one.
QList<QPointF> uncutLine(const LimiterRule &rule, const PlotAxes &axes)
{
    if (isOverFrequencies(axes)) {
        if (rule.bypass)
            return {};
        return {{axes.x.from, rule.threshold}, {axes.x.to, rule.threshold}};
    }
    QList<QPointF> line{{axes.x.from, limitedLevel(rule, axes.x.from)}};
    if (!rule.bypass && rule.threshold > axes.x.from && rule.threshold < axes.x.to)
        line.append({rule.threshold, rule.threshold});
    line.append({axes.x.to, limitedLevel(rule, axes.x.to)});
    return line;
}

/// The thresholds whose handle is inside the frame.
std::optional<AxisRange> thresholdRange(const PlotAxes &axes)
{
    if (!axes.isShowable())
        return std::nullopt;
    if (isOverFrequencies(axes))
        return axes.y;
    const AxisRange common{std::max(axes.x.from, axes.y.from), std::min(axes.x.to, axes.y.to)};
    return common.from <= common.to ? std::optional(common) : std::nullopt;
}

double keptInside(double normalised)
{
    return std::clamp(normalised, 0.0, 1.0);
}

} // namespace

QList<QPointF> limiterLine(const LimiterRule &rule, const PlotAxes &axes)
{
    if (!axes.isShowable() || !std::isfinite(rule.threshold) || std::isnan(rule.ratio))
        return {};
    QList<QPointF> line;
    for (const QPointF &point : uncutLine(rule, axes))
        line.append(axes.toNormalised(point));
    // A line that never falls enters the frame once and leaves it once.
    const QList<QList<QPointF>> pieces = clipPolyline(line, QRectF(0.0, 0.0, 1.0, 1.0));
    return pieces.value(0);
}

QPointF limiterHandle(const LimiterRule &rule, const PlotAxes &axes)
{
    const double level = std::isfinite(rule.threshold) ? rule.threshold : axes.y.from;
    const QPointF onDiagonal = axes.toNormalised({level, level});
    const double x = isOverFrequencies(axes) ? 0.5 : keptInside(onDiagonal.x());
    return axes.isShowable() ? QPointF(x, keptInside(onDiagonal.y())) : QPointF();
}

double thresholdInside(double wanted, const PlotAxes &axes)
{
    const std::optional<AxisRange> range = thresholdRange(axes);
    if (!range || std::isnan(wanted))
        return std::numeric_limits<double>::quiet_NaN();
    return std::clamp(wanted, range->from, range->to);
}

double thresholdMovedBy(double threshold, double difference, const PlotAxes &axes)
{
    const std::optional<AxisRange> range = thresholdRange(axes);
    const double wanted = threshold + difference;
    if (!range || std::isnan(wanted))
        return std::numeric_limits<double>::quiet_NaN();
    return std::clamp(wanted, std::min(range->from, threshold), std::max(range->to, threshold));
}

double thresholdNear(const QPointF &normalised, const PlotAxes &axes)
{
    if (std::isnan(normalised.x()) || std::isnan(normalised.y()))
        return std::numeric_limits<double>::quiet_NaN();
    const double outputLevel = axes.y.toValue(1.0 - normalised.y());
    if (isOverFrequencies(axes))
        return thresholdInside(outputLevel, axes);
    return thresholdInside((axes.x.toValue(normalised.x()) + outputLevel) / 2.0, axes);
}

} // namespace tamble::client
