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
    enum class Placing {
        Stacked,
        Apart, ///< Where two overlap they have one colour.
    };

    RectanglesNode();

    /// Opaque ones that lie apart do not wait for what is below them: all such nodes are drawn at once, and do not keep
    /// other things that are alike, such as the icons on them, from being drawn together.
    void setRectangles(std::span<const ColoredRectangle> rectangles, Placing placing = Placing::Stacked);

    void paint(PictureCanvas &canvas) const override;

private:
    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
    QSGVertexColorMaterial m_opaqueMaterial;
};

} // namespace tamble::client
