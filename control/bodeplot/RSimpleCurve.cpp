#include "bodeplot/RSimpleCurve.h"

#include "base/StyleObject.h"

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
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    for (const auto signal :
         {&RSimpleCurve::xMinimumChanged, &RSimpleCurve::xMaximumChanged, &RSimpleCurve::yMinimumChanged,
          &RSimpleCurve::yMaximumChanged, &RSimpleCurve::xAxisScaleChanged, &RSimpleCurve::yAxisScaleChanged,
          &RSimpleCurve::trimChanged})
        connect(this, signal, this, &RSimpleCurve::invalidateCurve);
    for (const auto signal :
         {&RSimpleCurve::pointsChanged, &RSimpleCurve::xValuesChanged, &RSimpleCurve::yValuesChanged})
        connect(this, signal, this, &RSimpleCurve::collectPoints);
}

void RSimpleCurve::setStyle(QObject *style)
{
    if (!exchangeStyle(m_style, style, this, "refreshColors()"))
        return;
    refreshColors();
    Q_EMIT styleChanged();
}

void RSimpleCurve::refreshColors()
{
    polish();
}

void RSimpleCurve::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    m_linesStale = true;
    polish();
}

void RSimpleCurve::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        polish();
}

void RSimpleCurve::updatePolish()
{
    m_stroke.readStyle(m_style, "curveColor", "curveLineWidth", *this);
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
    invalidateCurve();
}

void RSimpleCurve::invalidateCurve()
{
    m_linesStale = true;
    polish();
    const int count = client::visibleCount({m_samples, m_trim}, axes());
    if (std::exchange(m_visibleCount, count) != count)
        Q_EMIT visibleCountChanged();
}

PlotAxes RSimpleCurve::axes() const
{
    return {{m_xMinimum, m_xMaximum, axisScale(m_xAxisScale)}, {m_yMinimum, m_yMaximum, axisScale(m_yAxisScale)}};
}

} // namespace tamble::client
