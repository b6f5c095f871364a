#include "bodeplot/frame/FrameTicks.h"

#include "scale/LabelRoom.h"

#include "scale/NumberText.h"
#include "scale/PlotAxes.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int maximumTicks = 1000;

/// A quotient that misses a whole number only by the error of its division counts as that number.
double wholeIfClose(double quotient)
{
    const double whole = std::round(quotient);
    return std::abs(quotient - whole) <= 1e-9 * std::abs(whole) ? whole : quotient;
}

/// The next of 1 to 9 times the powers of ten.
void advance(double &digit, double &power)
{
    digit += 1.0;
    if (digit < 10.0)
        return;
    digit = 1.0;
    power *= 10.0;
}

FrameTicks logarithmicTicks(const AxisRange &axis)
{
    FrameTicks ticks;
    double power = common::orderOfMagnitude(axis.from);
    double digit = std::floor(wholeIfClose(axis.from / power));
    advance(digit, power);
    // Digit times power instead of adding up, so that 0.1, 0.2 … reach 1 exactly.
    for (; digit * power < axis.to; advance(digit, power)) {
        if (ticks.values.size() == maximumTicks)
            return {{}, TickProblem::TooManyTicks};
        ticks.values.append(digit * power);
    }
    return ticks;
}

FrameTicks linearTicks(const AxisRange &axis, double increment)
{
    if (!(increment > 0.0))
        return {{}, TickProblem::IncrementNotPositive};
    if (!((axis.to - axis.from) / increment < maximumTicks))
        return {{}, TickProblem::TooManyTicks};
    FrameTicks ticks;
    const double first = std::trunc(wholeIfClose(axis.from / increment));
    const double end = wholeIfClose(axis.to / increment);
    for (double step = first; step < end && ticks.values.size() < maximumTicks; step += 1.0)
        ticks.values.append(step * increment + 0.0); // adding 0 turns -0 into 0
    return ticks;
}

/// 0 for the most important labels.
int rank(const FrameLabel &label)
{
    const double digit = std::round(label.value / common::orderOfMagnitude(label.value));
    if (digit == 1.0)
        return 0;
    return digit == 2.0 || digit == 5.0 ? 1 : 2;
}

} // namespace

FrameTicks frameTicks(const AxisRange &axis, double increment)
{
    const bool isLogarithmic = axis.scale == AxisScale::Logarithmic;
    if (isLogarithmic && axis.from <= 0.0)
        return {{}, TickProblem::MinimumNotPositive};
    if (!axis.isShowable())
        return {};
    return isLogarithmic ? logarithmicTicks(axis) : linearTicks(axis, increment);
}

TickChoice::TickChoice(const QVariantList &listed)
    : m_everything(listed.isEmpty())
{
    for (const QVariant &entry : listed) {
        bool isNumber = false;
        const double value = entry.toDouble(&isNumber);
        if (isNumber && std::isfinite(value))
            m_values.append(value);
    }
}

bool TickChoice::contains(double value) const
{
    // A page writes 0.3 where three steps of 0.1 are a hair more.
    const double tolerance = 1e-9 * std::max(std::abs(value), 1e-3);
    const auto isMeant = [&](double listed) { return std::abs(listed - value) <= tolerance; };
    return m_everything || std::any_of(m_values.cbegin(), m_values.cend(), isMeant);
}

QList<FrameLabel> frameLabels(const AxisRange &axis, const QList<double> &values, const TickChoice &choice,
                              Qt::Orientation orientation, double length)
{
    QList<FrameLabel> labels;
    for (const double value : values) {
        if (!choice.contains(value))
            continue;
        const double place = axis.place(value);
        const double position = length * (orientation == Qt::Horizontal ? place : 1.0 - place);
        labels.append({value, numberText(value, -1, AxisScale::Linear), position});
    }
    return labels;
}

QList<bool> readableLabels(const QList<FrameLabel> &labels, const QList<double> &extents, double gap)
{
    QList<LabelSpan> spans;
    for (qsizetype i = 0; i < labels.size(); ++i)
        spans.append({labels[i].position, extents.value(i), rank(labels[i])});
    return labelsWithRoom(spans, gap);
}

} // namespace tamble::client
