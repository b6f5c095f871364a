#include "bodeplot/CurveStroke.h"

#include "base/StyleObject.h"
#include "scenegraph/SmoothStrokeNode.h"
#include "scenegraph/SoftwarePicture.h"

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

void CurveStroke::readStyle(const QObject *style, const char *colorName, const char *widthName, const QQuickItem &item)
{
    const QColor color = styleColor(style, colorName);
    const StrokeWidth width{styleWidth(style, widthName),
                            item.window() ? item.window()->effectiveDevicePixelRatio() : 1.0};
    m_geometryStale = m_geometryStale || m_width != width || showsColor(m_color) != showsColor(color);
    m_colorStale = m_colorStale || m_color != color;
    m_color = color;
    m_width = width;
}

void CurveStroke::setLines(const QList<QList<QPointF>> &lines)
{
    m_geometryStale = m_geometryStale || m_lines != lines;
    m_lines = lines;
}

QSGNode *CurveStroke::handOver(const QQuickItem &item, QSGNode *oldNode)
{
    return SoftwarePicture::updated(item, oldNode, [this](QSGNode *old) { return updateStroke(old); });
}

QSGNode *CurveStroke::updateStroke(QSGNode *oldNode)
{
    auto *node = oldNode ? static_cast<SmoothStrokeNode *>(oldNode) : new SmoothStrokeNode;
    m_colorStale = false;
    if (showsColor(m_color))
        node->setColor(m_color);
    // A fresh node (first frame, or the window lost its scene graph) is filled whatever the flag says.
    if (!std::exchange(m_geometryStale, false) && oldNode)
        return node;
    node->begin(m_width);
    if (showsColor(m_color)) {
        for (const QList<QPointF> &line : std::as_const(m_lines))
            node->add(line);
    }
    node->end();
    return node;
}

} // namespace tamble::client
