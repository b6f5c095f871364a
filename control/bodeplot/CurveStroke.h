#pragma once

#include "scenegraph/SmoothStroke.h"

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtGui/QColor>

class QObject;
class QQuickItem;
class QSGNode;

namespace tamble::client {

/// What an item draws as one curve, possibly interrupted, and its way into the scene graph.
class CurveStroke
{
public:
    /// Reads colour and width, in pixels, from a style object. Without a colour nothing is drawn.
    void readStyle(const QObject *style, const char *colorName, const char *widthName, const QQuickItem &item);
    /// The pieces of the curve, in pixels of the item.
    void setLines(const QList<QList<QPointF>> &lines);

    /// Whether something changed since the last hand-over.
    bool isStale() const { return m_colorStale || m_geometryStale; }
    /// For the item's paint-node update: hands over what changed, to a new node everything. A new colour touches the
    /// material only.
    QSGNode *handOver(const QQuickItem &item, QSGNode *oldNode);

private:
    QSGNode *updateStroke(QSGNode *oldNode);

    QList<QList<QPointF>> m_lines;
    QColor m_color;
    StrokeWidth m_width;
    bool m_colorStale = true;
    bool m_geometryStale = true;
};

} // namespace tamble::client
