#pragma once

#include "ControlExport.h"

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class StrokeNode;

/// Common base of the line-drawing items: keeps one geometry node and lets the subclass fill it when it is stale.
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

    /// Gives the node its lines for the present values, width and size; called with a size that is not empty.
    virtual void fillNode(StrokeNode &node) const = 0;
    /// To be called when the values change: the node is filled anew in the next frame.
    void invalidateLines();
    /// Store a property, request what it needs, and tell whether it was a change.
    bool assignColor(const QColor &color);
    bool assignLineWidth(double lineWidth);

    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    QColor m_color = Qt::black;
    double m_lineWidth = 1.0;
    bool m_linesStale = true;
};

} // namespace tamble::client
