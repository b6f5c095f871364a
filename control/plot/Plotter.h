#pragma once

#include "base/ControlExport.h"

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class SmoothStrokeNode;
struct StrokeGeometry;

/// Common base of the line-drawing items: keeps one geometry node and asks the subclass for its lines when it is stale.
///
/// Up to a width of 1 the node draws lines, above it strips of triangles with smooth edges.
class TAMBLE_CLIENT_CONTROL_EXPORT Plotter : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// Colour of the lines; default black.
    QColor color() const { return m_color; }
    /// Width of the lines in pixels; default 1. A width that is not positive draws nothing.
    double lineWidth() const { return m_lineWidth; }

protected:
    explicit Plotter(QQuickItem *parent);

    /// The lines for the present values, width and size; asked for with a width up to 1 and a size that is not empty.
    virtual StrokeGeometry thinLines() const = 0;
    /// Adds the lines for the present values and size, which is not empty, to a node of the width above 1.
    virtual void addWideLines(SmoothStrokeNode &node) const = 0;
    /// To be called when the values change: the node is filled anew in the next frame.
    void invalidateLines();
    /// Store a property, request what it needs, and tell whether it was a change.
    bool assignColor(const QColor &color);
    bool assignLineWidth(double lineWidth);

    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    QSGNode *updateLines(QSGNode *oldNode);
    QSGNode *updateThinNode(QSGNode *oldNode, bool linesStale) const;
    QSGNode *updateWideNode(QSGNode *oldNode, bool linesStale) const;

    QColor m_color = Qt::black;
    double m_lineWidth = 1.0;
    bool m_linesStale = true;
    bool m_nodeIsWide = false;
};

} // namespace tamble::client
