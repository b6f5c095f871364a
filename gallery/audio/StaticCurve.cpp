#include "StaticCurve.h"

#include <algorithm>
#include <cmath>

double StaticCurve::gain(double inputLevel) const
{
    if (points.size() < 2 || !(inputMaximum > inputMinimum))
        return 0.0;
    // A gain is read off where the curve begins; from a level, the input level there is taken off.
    const double first = inputMinimum + points.constFirst().x() * (inputMaximum - inputMinimum);
    const double level = std::max(inputLevel, first);
    const double x = (level - inputMinimum) / (inputMaximum - inputMinimum);
    const double height = y(x);
    const double output = outputMaximum - height * (outputMaximum - outputMinimum);
    if (meaning == Meaning::Gain)
        return std::isfinite(output) ? output : 0.0;
    const double result = output - level;
    if (floorGain && height >= 1.0 && result < 0.0)
        return *floorGain;
    return std::isfinite(result) ? result : 0.0;
}

double StaticCurve::y(double x) const
{
    double slope = 0.0;
    for (qsizetype i = 1; i < points.size(); ++i) {
        const QPointF from = points[i - 1];
        const QPointF to = points[i];
        if (to.x() > from.x())
            slope = (to.y() - from.y()) / (to.x() - from.x());
        if (x <= to.x())
            return to.x() > from.x() ? from.y() + slope * (x - from.x()) : from.y();
    }
    const QPointF last = points.constLast();
    return meaning == Meaning::Gain ? last.y() : last.y() + slope * (x - last.x());
}
