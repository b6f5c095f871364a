#include "bodeplot/RLimiterCurve.h"

#include "scale/ScaleSteps.h"

#include <utility>

namespace tamble::client {

RLimiterCurve::RLimiterCurve(QQuickItem *parent)
    : FrameItem(parent)
{
    for (const auto signal : {&RLimiterCurve::xAxisScaleChanged, &RLimiterCurve::thresholdChanged,
                              &RLimiterCurve::ratioChanged, &RLimiterCurve::bypassChanged})
        connect(this, signal, this, &RLimiterCurve::onFrameChanged);
    onFrameChanged();
}

QVariantList RLimiterCurve::points() const
{
    return {m_line.cbegin(), m_line.cend()};
}

qreal RLimiterCurve::thresholdNear(const QPointF &normalised, qreal step) const
{
    const PlotAxes frame = axes();
    return thresholdInside(snapped(client::thresholdNear(normalised, frame), step), frame);
}

qreal RLimiterCurve::thresholdMovedBy(qreal difference) const
{
    return client::thresholdMovedBy(m_threshold, difference, axes());
}

void RLimiterCurve::updatePolish()
{
    m_stroke.readStyle(style(), m_bypass ? "bypassCurveColor" : "curveColor",
                       m_bypass ? "bypassCurveLineWidth" : "curveLineWidth", *this);
    QList<QPointF> pixels;
    for (const QPointF &point : std::as_const(m_line))
        pixels.append({point.x() * width(), point.y() * height()});
    m_stroke.setLines({pixels});
    if (m_stroke.isStale())
        update();
}

QSGNode *RLimiterCurve::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return m_stroke.handOver(*this, oldNode);
}

void RLimiterCurve::onFrameChanged()
{
    const QList<QPointF> line = limiterLine(rule(), axes());
    const QPointF handlePoint = limiterHandle(rule(), axes());
    polish(); // bypassing may change the looks alone
    if (std::exchange(m_line, line) != line)
        Q_EMIT pointsChanged();
    if (std::exchange(m_handlePoint, handlePoint) != handlePoint)
        Q_EMIT handlePointChanged();
}

PlotAxes RLimiterCurve::axes() const
{
    return axesOf(axisScale(m_xAxisScale), AxisScale::Linear);
}

} // namespace tamble::client
