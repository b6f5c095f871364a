#include "plot/NumberingHelper.h"

#include "base/ControlLog.h"
#include "scale/GridValues.h"
#include "scale/NumberText.h"

#include <QtCore/QDebug>
#include <QtCore/QVariantMap>

namespace tamble::client {

NumberingHelper::NumberingHelper(QObject *parent)
    : QObject(parent)
{
    using Self = NumberingHelper;
    // Connected first, so that every other handler of a change finds the labels up to date.
    for (const auto signal : {&Self::fromChanged, &Self::toChanged, &Self::stepChanged, &Self::scaleChanged,
                              &Self::decimalsChanged, &Self::unitChanged, &Self::maximumCountChanged})
        connect(this, signal, this, &Self::recalculate);
    recalculate();
}

void NumberingHelper::classBegin()
{
    m_complete = false;
}

void NumberingHelper::componentComplete()
{
    m_complete = true;
    recalculate();
}

void NumberingHelper::recalculate()
{
    // While the properties of a component arrive one by one, their mixture with defaults means nothing.
    if (!m_complete)
        return;
    const AxisRange range{m_from, m_to, axisScale(m_scale)};
    const std::optional<QList<double>> values = thinnedGridValues({range, m_step}, m_maximumCount);
    if (!values)
        qCWarning(controlLog, "NumberingHelper::recalculate() step out of range");

    const QVariantList labels = labelsFor(values.value_or(QList<double>()), range);
    if (m_labels == labels)
        return;
    m_labels = labels;
    Q_EMIT labelsChanged();
}

QVariantList NumberingHelper::labelsFor(const QList<double> &values, const AxisRange &range) const
{
    const bool automatic = m_decimals < 0 && range.scale == AxisScale::Linear;
    const int decimals = automatic ? decimalsOfStep(m_step) : m_decimals;
    QVariantList labels;
    for (qsizetype i = 0; i < values.size(); ++i) {
        QString text = numberText(values[i], decimals, range.scale);
        if (i == values.size() - 1 && !m_unit.isEmpty())
            text += u' ' + m_unit;
        labels.append(QVariantMap{{QStringLiteral("value"), values[i]},
                                  {QStringLiteral("text"), text},
                                  {QStringLiteral("position"), range.toPosition(values[i])}});
    }
    return labels;
}

} // namespace tamble::client
