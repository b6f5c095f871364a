#include "meter/MeterBarNode.h"

#include "scenegraph/PictureCanvas.h"

#include <algorithm>
#include <span>

namespace tamble::client {

namespace {

constexpr int segmentCount = int(std::tuple_size_v<MeterSegments>);
constexpr int verticesPerSegment = 4;
constexpr int indicesPerSegment = 6;

} // namespace

MeterBarNode::MeterBarNode()
    : m_geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), segmentCount * verticesPerSegment,
                 segmentCount * indicesPerSegment)
{
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    quint16 *index = m_geometry.indexDataAsUShort();
    for (int segment = 0; segment < segmentCount; ++segment) {
        for (const int corner : {0, 1, 2, 2, 1, 3})
            *index++ = quint16(segment * verticesPerSegment + corner);
    }
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void MeterBarNode::setBar(const MeterSegments &segments, float breadth, bool horizontal, const MeterColors &colors)
{
    QSGGeometry::ColoredPoint2D *vertex = m_geometry.vertexDataAsColoredPoint2D();
    for (const MeterSegment &segment : segments) {
        // The material wants colours that are multiplied with their opacity.
        const QRgb color = qPremultiply(colors.at(std::size_t(segment.zone)).rgba());
        for (const float along : {segment.from, segment.to}) {
            for (const float across : {0.0F, breadth}) {
                vertex++->set(horizontal ? along : across, horizontal ? across : along, uchar(qRed(color)),
                              uchar(qGreen(color)), uchar(qBlue(color)), uchar(qAlpha(color)));
            }
        }
    }
    const bool opaque = std::all_of(colors.begin(), colors.end(), [](const QColor &c) { return c.alpha() == 255; });
    if (opaque == m_material.flags().testFlag(QSGMaterial::Blending)) {
        m_material.setFlag(QSGMaterial::Blending, !opaque);
        markDirty(DirtyMaterial);
    }
    markDirty(DirtyGeometry);
}

void MeterBarNode::paint(PictureCanvas &canvas) const
{
    const QSGGeometry::ColoredPoint2D *vertex = m_geometry.vertexDataAsColoredPoint2D();
    for (int segment = 0; segment < segmentCount; ++segment, vertex += verticesPerSegment) {
        canvas.setColor(QColor::fromRgba(qUnpremultiply(qRgba(vertex->r, vertex->g, vertex->b, vertex->a))));
        canvas.fillStrip(std::span(vertex, verticesPerSegment), [](const QSGGeometry::ColoredPoint2D &corner) {
            return CanvasVertex{.x = corner.x, .y = corner.y};
        });
    }
}

} // namespace tamble::client
