#include "bodeplot/RSimpleCurve.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tamble::client {

namespace {

/// Interrupts the line, as the gap in the page's list should.
constexpr QPointF noPoint{std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};

QPointF pointOf(const QVariant &entry)
{
    return entry.canConvert<QPointF>() ? entry.toPointF() : noPoint;
}

} // namespace

RSimpleCurve::RSimpleCurve(QQuickItem *parent)
    : FrameItem(parent)
{
    for (const auto signal :
         {&RSimpleCurve::xAxisScaleChanged, &RSimpleCurve::yAxisScaleChanged, &RSimpleCurve::trimChanged})
        connect(this, signal, this, &RSimpleCurve::onFrameChanged);
    for (const auto signal :
         {&RSimpleCurve::pointsChanged, &RSimpleCurve::xValuesChanged, &RSimpleCurve::yValuesChanged})
        connect(this, signal, this, &RSimpleCurve::collectPoints);
}

void RSimpleCurve::updatePolish()
{
    m_stroke.readStyle(style(), "curveColor", "curveLineWidth", *this);
    if (std::exchange(m_linesStale, false))
        m_stroke.setLines(curvePixels({m_samples, m_trim}, axes(), size()));
    if (m_stroke.isStale())
        update();
}

QSGNode *RSimpleCurve::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return m_stroke.handOver(*this, oldNode);
}

void RSimpleCurve::collectPoints()
{
    m_samples.clear();
    if (m_points.isEmpty()) {
        for (qsizetype i = 0; i < std::min(m_xValues.size(), m_yValues.size()); ++i)
            m_samples.append({m_xValues[i], m_yValues[i]});
    } else {
        std::transform(m_points.cbegin(), m_points.cend(), std::back_inserter(m_samples), pointOf);
    }
    onFrameChanged();
}

void RSimpleCurve::onFrameChanged()
{
    m_linesStale = true;
    polish();
    const int count = client::visibleCount({m_samples, m_trim}, axes());
    if (std::exchange(m_visibleCount, count) != count)
        Q_EMIT visibleCountChanged();
}

PlotAxes RSimpleCurve::axes() const
{
    return axesOf(axisScale(m_xAxisScale), axisScale(m_yAxisScale));
}

} // namespace tamble::client
