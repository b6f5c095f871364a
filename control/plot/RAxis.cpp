#include "plot/RAxis.h"

#include "plot/RAxisItem.h"
#include "scale/AxisTicks.h"

namespace tamble::client {

namespace {

constexpr double automaticTickDistancePixels = 10.0;

} // namespace

RAxis::RAxis(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RAxis::setTickCount(int tickCount)
{
    assign(m_tickCount, tickCount, &RAxis::tickCountChanged);
}

void RAxis::setMinValue(int minValue)
{
    assign(m_minValue, minValue, &RAxis::minValueChanged);
}

void RAxis::setMaxValue(int maxValue)
{
    assign(m_maxValue, maxValue, &RAxis::maxValueChanged);
}

void RAxis::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    recalculate();
}

void RAxis::assign(double &stored, double value, void (RAxis::*changed)())
{
    if (stored == value)
        return;
    stored = value;
    Q_EMIT(this->*changed)();
    recalculate();
}

void RAxis::recalculate()
{
    const double count = m_tickCount < 0.0 ? height() / automaticTickDistancePixels : m_tickCount;
    m_ticks.clear();
    for (const AxisTick &tick : axisTicks(m_minValue, m_maxValue, count, height()))
        m_ticks.append(new RAxisItem(tick.y, tick.label, this));
    Q_EMIT ticksChanged();
}

} // namespace tamble::client
