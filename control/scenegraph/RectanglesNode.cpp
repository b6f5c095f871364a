#include "scenegraph/RectanglesNode.h"

#include "scenegraph/PictureCanvas.h"

#include <algorithm>

namespace tamble::client {

namespace {

constexpr int cornerCount = 4;
constexpr int indexCount = 6;

bool isDrawn(const ColoredRectangle &rectangle)
{
    return !rectangle.rect.isEmpty() && rectangle.color.alpha() > 0;
}

bool isOpaque(const ColoredRectangle &rectangle)
{
    return !isDrawn(rectangle) || rectangle.color.alpha() == 255;
}

} // namespace

RectanglesNode::RectanglesNode()
    : m_geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0)
{
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
    // All of a node is at one depth, where of opaque rectangles the first would hide the others.
    m_material.setFlag(QSGMaterial::Blending);
    m_opaqueMaterial.setFlag(QSGMaterial::Blending, false);
}

void RectanglesNode::setRectangles(std::span<const ColoredRectangle> rectangles, Placing placing)
{
    const bool isSolid = placing == Placing::Apart && std::all_of(rectangles.begin(), rectangles.end(), isOpaque);
    if (isSolid != bool(opaqueMaterial()))
        setOpaqueMaterial(isSolid ? &m_opaqueMaterial : nullptr);
    const auto count = int(std::count_if(rectangles.begin(), rectangles.end(), isDrawn));
    if (m_geometry.vertexCount() != count * cornerCount)
        m_geometry.allocate(count * cornerCount, count * indexCount);
    QSGGeometry::ColoredPoint2D *vertex = m_geometry.vertexDataAsColoredPoint2D();
    quint16 *index = m_geometry.indexDataAsUShort();
    int first = 0;
    for (const auto &[rect, color] : rectangles) {
        if (!isDrawn({rect, color}))
            continue;
        // The material wants colours that are multiplied with their opacity.
        const QRgb shade = qPremultiply(color.rgba());
        for (const double y : {rect.top(), rect.bottom()}) {
            for (const double x : {rect.left(), rect.right()})
                vertex++->set(float(x), float(y), uchar(qRed(shade)), uchar(qGreen(shade)), uchar(qBlue(shade)),
                              uchar(qAlpha(shade)));
        }
        for (const int corner : {0, 1, 2, 2, 1, 3})
            *index++ = quint16(first + corner);
        first += cornerCount;
    }
    markDirty(DirtyGeometry);
}

void RectanglesNode::paint(PictureCanvas &canvas) const
{
    const QSGGeometry::ColoredPoint2D *vertex = m_geometry.vertexDataAsColoredPoint2D();
    for (int corner = 0; corner < m_geometry.vertexCount(); corner += cornerCount, vertex += cornerCount) {
        canvas.setColor(QColor::fromRgba(qUnpremultiply(qRgba(vertex->r, vertex->g, vertex->b, vertex->a))));
        canvas.fillStrip(std::span(vertex, std::size_t(cornerCount)), [](const QSGGeometry::ColoredPoint2D &point) {
            return CanvasVertex{.x = point.x, .y = point.y};
        });
    }
}

} // namespace tamble::client
