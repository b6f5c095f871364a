#include "bodeplot/frame/RBodeplotAxis.h"

#include "base/ControlLog.h"
#include "base/StyleObject.h"

#include <QtCore/QDebug>
#include <QtCore/QVariantMap>
#include <QtGui/QFontMetricsF>

#include <cmath>
#include <utility>

namespace tamble::client {

RBodeplotAxis::RBodeplotAxis(QQuickItem *parent)
    : QQuickItem(parent)
{
    for (const auto signal :
         {&RBodeplotAxis::horizontalChanged, &RBodeplotAxis::minimumChanged, &RBodeplotAxis::maximumChanged,
          &RBodeplotAxis::deltaChanged, &RBodeplotAxis::scaleChanged, &RBodeplotAxis::xAxisTickValuesChanged,
          &RBodeplotAxis::yAxisTickValuesChanged, &RBodeplotAxis::fontSizeAxisChanged})
        connect(this, signal, this, &RBodeplotAxis::invalidateLabels);
}

void RBodeplotAxis::setStyle(QObject *style)
{
    if (!exchangeStyle(m_style, style, this, "refreshFont()"))
        return;
    refreshFont();
    Q_EMIT styleChanged();
}

void RBodeplotAxis::refreshFont()
{
    invalidateLabels();
}

QList<bool> RBodeplotAxis::readable()
{
    labels();
    return m_readable;
}

QVariantList RBodeplotAxis::labels()
{
    // While the component is being built, properties come one by one and would be reported for what is not meant yet.
    if (isComponentComplete())
        updateLabels();
    return m_labels;
}

void RBodeplotAxis::componentComplete()
{
    QQuickItem::componentComplete();
    invalidateLabels();
}

void RBodeplotAxis::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        invalidateLabels();
}

void RBodeplotAxis::updatePolish()
{
    updateLabels();
    if (std::exchange(m_changeUnsignalled, false))
        Q_EMIT labelsChanged();
}

void RBodeplotAxis::invalidateLabels()
{
    m_labelsStale = true;
    if (!isComponentComplete())
        return;
    // A zoom changes both bounds: whoever shows the labels rebuilds them once. Without a window no frame would come.
    if (window())
        polish();
    else
        updatePolish();
}

void RBodeplotAxis::updateLabels()
{
    if (!std::exchange(m_labelsStale, false))
        return;
    const AxisRange axis{m_minimum, m_maximum, axisScale(m_scale)};
    const FrameTicks ticks = frameTicks(axis, m_delta);
    reportProblem(ticks.problem);

    const TickChoice choice(m_horizontal ? m_xAxisTickValues : m_yAxisTickValues);
    const Qt::Orientation orientation = m_horizontal ? Qt::Horizontal : Qt::Vertical;
    const QList<FrameLabel> placed =
        frameLabels(axis, ticks.values, choice, orientation, m_horizontal ? width() : height());
    QVariantList labels;
    for (const FrameLabel &label : placed) {
        labels.append(QVariantMap{{QStringLiteral("value"), label.value},
                                  {QStringLiteral("text"), label.text},
                                  {QStringLiteral("position"), label.position}});
    }
    const QList<bool> readable = readableOf(placed);
    m_changeUnsignalled = m_changeUnsignalled || labels != m_labels || readable != m_readable;
    m_labels = labels;
    m_readable = readable;
}

QList<bool> RBodeplotAxis::readableOf(const QList<FrameLabel> &labels) const
{
    const bool isListed = !(m_horizontal ? m_xAxisTickValues : m_yAxisTickValues).isEmpty();
    if (isListed || axisScale(m_scale) == AxisScale::Linear)
        return QList<bool>(labels.size(), true);

    QFont font;
    const QString family = m_style ? m_style->property("fontFamily").toString() : QString();
    if (!family.isEmpty())
        font.setFamily(family);
    const double pixelSize = m_style ? m_style->property("fontSize").toDouble() : m_fontSizeAxis;
    font.setPixelSize(int(std::fmin(std::fmax(pixelSize, 1.0), 1000.0)));
    const QFontMetricsF metrics(font);
    const double space = metrics.horizontalAdvance(u' ');
    QList<double> extents;
    for (const FrameLabel &label : labels)
        extents.append(m_horizontal ? metrics.horizontalAdvance(label.text) : metrics.height());
    return readableLabels(labels, extents, m_horizontal ? 2.0 * space : 0.0);
}

void RBodeplotAxis::reportProblem(TickProblem problem)
{
    if (std::exchange(m_problem, problem) == problem)
        return;
    switch (problem) {
    case TickProblem::None:
        break;
    case TickProblem::IncrementNotPositive:
        qCWarning(controlLog, "RBodeplotAxis::updateLabels() delta must be positive");
        break;
    case TickProblem::MinimumNotPositive:
        qCWarning(controlLog, "RBodeplotAxis::updateLabels() minimum of a logarithmic axis must be positive");
        break;
    case TickProblem::TooManyTicks:
        qCWarning(controlLog, "RBodeplotAxis::updateLabels() more than 1000 labels");
        break;
    }
}

} // namespace tamble::client
