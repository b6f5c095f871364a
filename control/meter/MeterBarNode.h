#pragma once

#include "meter/MeterSegments.h"
#include "scenegraph/PictureShape.h"

#include <QtGui/QColor>
#include <QtQuick/QSGGeometryNode>
#include <QtQuick/QSGVertexColorMaterial>

namespace tamble::client {

using MeterColors = std::array<QColor, meterZoneCount>;

/// A meter's bar as coloured rectangles. Its own node each, but one material, so that walls of meters are drawn at
/// once.
class MeterBarNode : public QSGGeometryNode, public PictureShape
{
public:
    MeterBarNode();

    /// Draws `segments` across `breadth` pixels, side by side when `horizontal`.
    void setBar(const MeterSegments &segments, float breadth, bool horizontal, const MeterColors &colors);

    void paint(PictureCanvas &canvas) const override;

private:
    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
};

} // namespace tamble::client
