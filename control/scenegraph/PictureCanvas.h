#pragma once

#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtGui/QImage>

#include <array>
#include <cstddef>
#include <span>

namespace tamble::client {

/// Vertex, in pixels of the item, with two values that are interpolated between vertices.
struct CanvasVertex
{
    double x = 0.0;
    double y = 0.0;
    double first = 0.0;
    double second = 0.0;
};

/// How the two values of a place weaken the colour there.
enum class CanvasStrength {
    Full,     ///< They do not.
    Product,  ///< Strength is their product.
    Coverage, ///< Strength falls from 1 to 0 where the first value, of either sign, comes within 1 of the second.
};

/// Fills triangles as a graphics card would, for a renderer that has none: a pixel is drawn when its middle is covered,
/// so triangles with a common edge leave no gap between them and draw no pixel twice.
class PictureCanvas
{
public:
    /// Transparent picture of a part of an item, in pixels of the item, each of which is `pixelRatio` device pixels
    /// wide. What would take more than 128 MB is coarser than that; an area that is empty or endless has no pixels.
    PictureCanvas(const QRectF &area, double pixelRatio);

    /// For all that is drawn from now on; black by default.
    void setColor(const QColor &color, CanvasStrength strength = CanvasStrength::Full);
    void fillTriangle(const std::array<CanvasVertex, 3> &corners);
    /// Fills a triangle strip; `toCanvas` makes a CanvasVertex of a vertex.
    template <typename Vertex, typename ToCanvas>
    void fillStrip(std::span<const Vertex> strip, ToCanvas toCanvas);
    /// Lines of one device pixel: separate ones between pairs of points, or one through all of them.
    void drawThinLines(const QList<QPointF> &points, bool joined);

    /// What the image shows, in pixels of the item: the area asked for, enlarged to whole device pixels.
    const QRectF &area() const { return m_area; }
    const QImage &image() const { return m_image; }

private:
    QRectF m_area;
    double m_pixelRatio;
    QImage m_image;
    QColor m_color = Qt::black;
    CanvasStrength m_strength = CanvasStrength::Full;
};

template <typename Vertex, typename ToCanvas>
void PictureCanvas::fillStrip(std::span<const Vertex> strip, ToCanvas toCanvas)
{
    for (std::size_t i = 2; i < strip.size(); ++i)
        fillTriangle({toCanvas(strip[i - 2]), toCanvas(strip[i - 1]), toCanvas(strip[i])});
}

} // namespace tamble::client
