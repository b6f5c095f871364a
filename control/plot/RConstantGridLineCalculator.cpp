#include "plot/RConstantGridLineCalculator.h"

#include "base/ControlLog.h"
#include "scale/GridValues.h"

#include <QtCore/QDebug>

namespace tamble::client {

RConstantGridLineCalculator::RConstantGridLineCalculator(QObject *parent)
    : QObject(parent)
{
    using Self = RConstantGridLineCalculator;
    // Connected first, so that every other handler of a change finds the lines up to date.
    for (const auto signal : {&Self::fromChanged, &Self::toChanged, &Self::stepChanged, &Self::originChanged,
                              &Self::scaleChanged, &Self::includeEndsChanged})
        connect(this, signal, this, &Self::recalculate);
    recalculate();
}

void RConstantGridLineCalculator::classBegin()
{
    m_complete = false;
}

void RConstantGridLineCalculator::componentComplete()
{
    m_complete = true;
    recalculate();
}

void RConstantGridLineCalculator::recalculate()
{
    // While the properties of a component arrive one by one, their mixture with defaults means nothing.
    if (!m_complete)
        return;
    const AxisRange range{m_from, m_to, axisScale(m_scale)};
    const std::optional<QList<double>> found = gridValues({range, m_step, m_origin, m_includeEnds});
    if (!found)
        qCWarning(controlLog, "RConstantGridLineCalculator::recalculate() step out of range");

    const QList<double> values = found.value_or(QList<double>());
    QList<double> positions;
    for (const double value : values)
        positions.append(range.toPosition(value));
    const bool valuesDiffer = m_values != values;
    const bool positionsDiffer = m_positions != positions;
    m_values = values;
    m_positions = positions;
    if (valuesDiffer)
        Q_EMIT valuesChanged();
    if (positionsDiffer)
        Q_EMIT positionsChanged();
}

} // namespace tamble::client
