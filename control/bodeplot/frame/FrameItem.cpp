#include "bodeplot/frame/FrameItem.h"

#include "base/StyleObject.h"

namespace tamble::client {

FrameItem::FrameItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    for (const auto signal : {&FrameItem::xMinimumChanged, &FrameItem::xMaximumChanged, &FrameItem::yMinimumChanged,
                              &FrameItem::yMaximumChanged})
        connect(this, signal, this, &FrameItem::onFrameChanged);
}

void FrameItem::setStyle(QObject *style)
{
    if (!exchangeStyle(m_style, style, this, "refreshColors()"))
        return;
    refreshColors();
    Q_EMIT styleChanged();
}

void FrameItem::refreshColors()
{
    polish();
}

PlotAxes FrameItem::axesOf(AxisScale x, AxisScale y) const
{
    return {{m_xMinimum, m_xMaximum, x}, {m_yMinimum, m_yMaximum, y}};
}

void FrameItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        onFrameChanged();
}

void FrameItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && data.window))
        onFrameChanged();
}

} // namespace tamble::client
