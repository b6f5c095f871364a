#include "dynamics/RPlotRules.h"

#include "dynamics/CompressorCurve.h"
#include "dynamics/HandleValues.h"
#include "scale/AxisRange.h"
#include "scale/LabelRoom.h"

#include <QtGui/QFontMetricsF>

namespace tamble::client {

double RPlotRules::placeOf(double level, double from, double to) const
{
    return AxisRange{from, to}.toPosition(level);
}

double RPlotRules::levelAt(double place, double from, double to) const
{
    return AxisRange{from, to}.valueAt(place);
}

double RPlotRules::limitedValue(double wanted, double minimum, double maximum, double step) const
{
    return tamble::client::limitedValue(wanted, minimum, maximum, step);
}

double RPlotRules::steppedValue(double value, double change, double minimum, double maximum, double step) const
{
    return tamble::client::steppedValue(value, change, minimum, maximum, step);
}

double RPlotRules::ratioOfLine(double run, double rise, double highest) const
{
    return tamble::client::ratioOfLine(run, rise, highest);
}

double RPlotRules::compressorOutput(double input, double threshold, double ratio, double gain, double knee) const
{
    CompressorParameters parameters;
    parameters.softKneeActive = true;
    parameters.softKneeInDbu = knee;
    parameters.threshold = threshold;
    parameters.ratio = ratio;
    parameters.makeUpGain = gain;
    return tamble::client::compressorOutput(parameters, input);
}

double RPlotRules::heightOfCurve(const QVariantList &values, double x) const
{
    CurvePoints points;
    points.reserve(values.size());
    for (const QVariant &value : values)
        points.append(value.toPointF());
    return tamble::client::heightOfCurve(points, x);
}

QVariantList RPlotRules::shownNumbers(const QVariantList &labels, const QFont &font, double length,
                                      bool horizontal) const
{
    const QFontMetricsF metrics(font);
    QStringList texts;
    QList<LabelSpan> spans;
    for (const QVariant &label : labels) {
        const QVariantMap entry = label.toMap();
        texts.append(entry.value(QStringLiteral("text")).toString());
        const double position = entry.value(QStringLiteral("position")).toDouble();
        spans.append({.centre = length * (horizontal ? position : 1.0 - position),
                      .length = horizontal ? metrics.horizontalAdvance(texts.last()) : metrics.height()});
    }

    // Apart by a blank at least, or three numbers read as one; lines of text have their distance in their height.
    const double gap = horizontal ? metrics.horizontalAdvance(u' ') * 2.0 : 0.0;
    const QList<std::optional<double>> starts = numberStarts(spans, length, gap);
    QVariantList shown;
    for (qsizetype i = 0; i < starts.size(); ++i) {
        if (starts[i])
            shown.append(QVariantMap{{QStringLiteral("text"), texts[i]}, {QStringLiteral("start"), *starts[i]}});
    }
    return shown;
}

} // namespace tamble::client
