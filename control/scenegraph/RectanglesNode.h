#pragma once

#include "scenegraph/PictureShape.h"

#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtQuick/QSGGeometryNode>
#include <QtQuick/QSGVertexColorMaterial>

#include <span>

namespace tamble::client {

/// Rectangle in pixels of an item.
struct ColoredRectangle
{
    QRectF rect;
    QColor color;
};

/// Rectangles of one node, each with a colour of its own and above those before it; empty ones are left out. Nodes that
/// do not overlap are drawn together, whatever their colours are.
class RectanglesNode : public QSGGeometryNode, public PictureShape
{
public:
    RectanglesNode();

    void setRectangles(std::span<const ColoredRectangle> rectangles);

    void paint(PictureCanvas &canvas) const override;

private:
    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
};

} // namespace tamble::client
