#include "dynamics/CompressorCurve.h"

#include "dynamics/TransferScale.h"

namespace tamble::client {

namespace {

constexpr int kneeSegments = 16;

double kneeWidth(const CompressorParameters &p)
{
    return p.softKneeActive && p.softKneeInDbu > 0.0 ? p.softKneeInDbu : 0.0;
}

/// Input levels at which the curve bends, within the plotted range and including its two ends.
QList<double> bends(const CompressorParameters &p)
{
    QList<double> inputs{p.thresholdMin};
    const auto appendInside = [&](double input) {
        if (input > p.thresholdMin && input < p.thresholdMax)
            inputs.append(input);
    };
    const double width = kneeWidth(p);
    if (width > 0.0) {
        for (int i = 0; i <= kneeSegments; ++i)
            appendInside(p.threshold - width / 2.0 + i * width / kneeSegments);
    } else {
        appendInside(p.threshold);
    }
    inputs.append(p.thresholdMax);
    return inputs;
}

/// Appends the input level at which the straight line between two points passes the output level `edge`, if it does.
void appendCrossing(QList<double> &inputs, const QPointF &from, const QPointF &to, double edge)
{
    const bool crosses = (from.y() < edge && to.y() > edge) || (from.y() > edge && to.y() < edge);
    if (crosses)
        inputs.append(from.x() + (edge - from.y()) * (to.x() - from.x()) / (to.y() - from.y()));
}

} // namespace

double compressorOutput(const CompressorParameters &p, double input)
{
    const double slope = p.ratio > 1.0 ? 1.0 / p.ratio : 1.0;
    const double width = kneeWidth(p);
    if (input <= p.threshold - width / 2.0)
        return input + p.makeUpGain;
    if (input >= p.threshold + width / 2.0)
        return p.threshold + (input - p.threshold) * slope + p.makeUpGain;
    const double intoKnee = input - p.threshold + width / 2.0;
    return input + (slope - 1.0) * intoKnee * intoKnee / (2.0 * width) + p.makeUpGain;
}

CurvePoints compressorCurve(const CompressorParameters &p)
{
    if (!p.active)
        return {};
    if (p.bypassed || !(p.thresholdMax > p.thresholdMin))
        return identityLine();

    // Without the crossings, clamping the end of a part that leaves the plot would change the slope inside the plot.
    QList<double> inputs;
    QPointF previous;
    for (const double input : bends(p)) {
        const QPointF current(input, compressorOutput(p, input));
        if (!inputs.isEmpty()) {
            appendCrossing(inputs, previous, current, p.thresholdMin); // the output never falls: bottom edge first
            appendCrossing(inputs, previous, current, p.thresholdMax);
        }
        inputs.append(input);
        previous = current;
    }

    const LevelRange range{p.thresholdMin, p.thresholdMax};
    CurvePoints points;
    for (const double input : inputs)
        points.append(range.point(input, compressorOutput(p, input)));
    return points;
}

} // namespace tamble::client
