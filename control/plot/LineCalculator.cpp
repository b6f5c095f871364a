#include "plot/LineCalculator.h"

namespace tamble::client {

LineCalculator::LineCalculator(QObject *parent)
    : QObject(parent)
{
    // Connected first, so that every other handler of a change finds the positions up to date.
    for (const auto signal : {&LineCalculator::fromChanged, &LineCalculator::toChanged, &LineCalculator::scaleChanged,
                              &LineCalculator::valuesChanged})
        connect(this, signal, this, &LineCalculator::recalculate);
}

void LineCalculator::recalculate()
{
    const QList<double> positions = AxisRange{m_from, m_to, axisScale(m_scale)}.toPositions(m_values);
    if (m_positions == positions)
        return;
    m_positions = positions;
    Q_EMIT positionsChanged();
}

} // namespace tamble::client
