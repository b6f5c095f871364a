#pragma once

#include "scale/AxisRange.h"

#include <QtCore/QString>
#include <QtCore/QVariantList>

namespace tamble::client {

/// Why an axis has no ticks although its bounds are in order.
enum class TickProblem {
    None,
    IncrementNotPositive, ///< Linear axis without a step.
    MinimumNotPositive,   ///< Logarithmic axis from 0 or less.
    TooManyTicks,         ///< More than 1000, which no plot can show.
};

/// Values along an axis that lines and labels may mark, lowest first.
struct FrameTicks
{
    QList<double> values;
    TickProblem problem = TickProblem::None;
};

/// The values below the maximum of an axis that may be marked.
///
/// Logarithmic: 1 to 9 times the powers of ten above the minimum; `increment` is ignored. Linear: multiples of the
/// increment, from the minimum rounded toward zero, so that a positive minimum that is no multiple has a first value
/// below it; pages count on that. None for bounds that are not finite or do not rise.
FrameTicks frameTicks(const AxisRange &axis, double increment);

/// What a page wants marked: everything, or the listed values only.
class TickChoice
{
public:
    /// An empty list chooses everything. Entries that are no numbers are skipped, but do not make the list empty.
    explicit TickChoice(const QVariantList &listed);

    bool contains(double value) const;

private:
    bool m_everything;
    QList<double> m_values;
};

/// A number beside an axis, and where its centre is: in pixels to the right, or downwards on a vertical axis.
struct FrameLabel
{
    double value = 0.0;
    QString text;
    double position = 0.0;
};

/// Labels of the chosen values along an axis of some length in pixels.
QList<FrameLabel> frameLabels(const AxisRange &axis, const QList<double> &values, const TickChoice &choice,
                              Qt::Orientation orientation, double length);

/// Which labels of a logarithmic axis can be read when those that would come closer than `gap` to a more important one
/// are left out: powers of ten first, then 2 and 5 times them, then the others.
///
/// Extents are the lengths of the labels along the axis; all in pixels, a label without extent counts as 0 long.
QList<bool> readableLabels(const QList<FrameLabel> &labels, const QList<double> &extents, double gap);

} // namespace tamble::client
