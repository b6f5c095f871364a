#include "meter/RMeterBase.h"

namespace tamble::client {

namespace {

constexpr int tickMilliseconds = 50;

} // namespace

RMeterBase::RMeterBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    setCurrentValue(-80.0);
    connect(&sharedTimer(), &QTimer::timeout, this, &RMeterBase::tick);
}

QTimer &RMeterBase::sharedTimer()
{
    static QTimer timer;
    timer.setInterval(tickMilliseconds);
    timer.start();
    return timer;
}

void RMeterBase::setSplit(bool split)
{
    assignThreshold(m_split, split, &RMeterBase::splitChanged);
}

void RMeterBase::setValue(double value)
{
    if (m_value == value)
        return;
    m_value = value;
    Q_EMIT valueChanged();
    refresh();
}

void RMeterBase::setValueMin(double valueMin)
{
    assignThreshold(m_range.minimum, valueMin, &RMeterBase::valueMinChanged);
}

void RMeterBase::setValueMinYellow(double valueMinYellow)
{
    assignThreshold(m_valueMinYellow, valueMinYellow, &RMeterBase::valueMinYellowChanged);
}

void RMeterBase::setValueMinRed(double valueMinRed)
{
    assignThreshold(m_valueMinRed, valueMinRed, &RMeterBase::valueMinRedChanged);
}

void RMeterBase::setValueMax(double valueMax)
{
    assignThreshold(m_range.maximum, valueMax, &RMeterBase::valueMaxChanged);
}

void RMeterBase::setValueMaxYellow(double valueMaxYellow)
{
    assignThreshold(m_valueMaxYellow, valueMaxYellow, &RMeterBase::valueMaxYellowChanged);
}

void RMeterBase::setValueMaxRed(double valueMaxRed)
{
    assignThreshold(m_valueMaxRed, valueMaxRed, &RMeterBase::valueMaxRedChanged);
}

void RMeterBase::setValueSplit(double valueSplit)
{
    assignThreshold(m_range.split, valueSplit, &RMeterBase::valueSplitChanged);
}

void RMeterBase::setCurrentValue(double level)
{
    if (m_currentValue == level)
        return;
    m_currentValue = displayedLevel(m_range, level);
    // The order is fixed, red ahead of yellow: handlers of a page see the values of one step in this sequence.
    Q_EMIT currentValueChanged();
    Q_EMIT currentValueFactorChanged();
    Q_EMIT currentValueRedFactorChanged();
    Q_EMIT currentValueYellowFactorChanged();
    Q_EMIT currentValueFactorMaxChanged();
    Q_EMIT currentValueRedFactorMaxChanged();
    Q_EMIT currentValueYellowFactorMaxChanged();
}

double RMeterBase::getCurrentValueFactor() const
{
    return m_split ? calcBarMin(m_valueMinYellow) : calcBar(m_valueMinYellow);
}

double RMeterBase::getCurrentValueYellowFactor() const
{
    return m_split ? calcBarMin(m_valueMinRed) : calcBar(m_valueMinRed);
}

double RMeterBase::getCurrentValueRedFactor() const
{
    return m_split ? calcBarMin(m_range.minimum) : calcBar(m_range.maximum);
}

double RMeterBase::getCurrentValueFactorMax() const
{
    return calcBarMax(m_valueMaxYellow);
}

double RMeterBase::getCurrentValueYellowFactorMax() const
{
    return calcBarMax(m_valueMaxRed);
}

double RMeterBase::getCurrentValueRedFactorMax() const
{
    return calcBarMax(m_range.maximum);
}

void RMeterBase::reset()
{
    setCurrentValue(m_range.minimum);
}

void RMeterBase::refresh()
{
    if (m_value > m_currentValue)
        setCurrentValue(m_value);
}

void RMeterBase::redraw() {}

template <typename Value>
void RMeterBase::assignThreshold(Value &stored, Value value, void (RMeterBase::*changed)())
{
    if (stored == value)
        return;
    stored = value;
    Q_EMIT(this->*changed)();
    reset();
    refresh();
}

void RMeterBase::tick()
{
    if (!isComponentComplete())
        return;
    // The fall assumes that exactly one interval has passed, so that all meters fall alike on a late timer.
    const double step = m_currentValueDecreasePerSecond / 1000.0 * tickMilliseconds;
    setCurrentValue(fallenLevel(m_currentValue, m_value, step));
}

double RMeterBase::calcBar(double zoneLimit) const
{
    return barFraction(m_range, m_currentValue, zoneLimit);
}

double RMeterBase::calcBarMin(double zoneLimit) const
{
    return lowerFraction(m_range, m_currentValue, zoneLimit);
}

double RMeterBase::calcBarMax(double zoneLimit) const
{
    return upperFraction(m_range, m_currentValue, zoneLimit);
}

} // namespace tamble::client
