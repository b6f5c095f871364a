#include "plot/RScaleHelper.h"

#include "base/ControlLog.h"
#include "scale/ScaleSteps.h"

#include <QtCore/QDebug>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

/// Two bounds that are both no numbers are the same mistake.
bool isSameBound(double first, double second)
{
    return first == second || (std::isnan(first) && std::isnan(second));
}

bool isSameRange(const AxisRange &first, const AxisRange &second)
{
    return isSameBound(first.from, second.from) && isSameBound(first.to, second.to) && first.scale == second.scale;
}

} // namespace

RScaleHelper::RScaleHelper(QObject *parent)
    : QObject(parent)
{}

double RScaleHelper::toPosition(double value)
{
    if (!checkRange("toPosition") || std::isnan(value))
        return 0.0;
    const double position = range().toPosition(value);
    return m_reverse ? 1.0 - position : position;
}

double RScaleHelper::toValue(double position)
{
    if (!checkRange("toValue"))
        return m_from;
    return range().toValue(m_reverse ? 1.0 - position : position);
}

double RScaleHelper::snap(double value, double step) const
{
    return snapped(value, step);
}

double RScaleHelper::niceStep(double lengthPx, double minPx) const
{
    const double extent = range().highest() - range().lowest();
    if (!(lengthPx > 0.0))
        return niceStepAtLeast(extent);
    return niceStepAtLeast(extent * std::max(minPx, 1.0) / lengthPx);
}

bool RScaleHelper::contains(double value) const
{
    return range().contains(value);
}

bool RScaleHelper::checkRange(const char *function)
{
    const AxisRange current = range();
    if (current.isUsable())
        return true;
    // Bindings call again and again; one line per unusable range is enough to find the mistake.
    if (!m_reportedRange || !isSameRange(*m_reportedRange, current)) {
        m_reportedRange = current;
        qCWarning(controlLog, "RScaleHelper::%s() range is empty or not above 0 on a logarithmic scale", function);
    }
    return false;
}

} // namespace tamble::client
