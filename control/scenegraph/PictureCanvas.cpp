#include "scenegraph/PictureCanvas.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tamble::client {

namespace {

constexpr double mostPixels = 32.0 * 1024.0 * 1024.0;
constexpr double longestSide = 32767.0; // of what QPainter can draw on

using Corners = std::array<CanvasVertex, 3>;

/// A pixel counts as covered from the edge on its left or upper side up to, but not on, the one opposite.
int firstPixel(double edge, int count)
{
    return int(std::fmax(0.0, std::fmin(std::ceil(edge - 0.5), count)));
}

/// A value that changes evenly over a triangle.
class Plane
{
public:
    Plane(const Corners &corners, double CanvasVertex::*value)
        : m_origin(corners[0])
        , m_value(corners[0].*value)
    {
        const auto &[a, b, c] = corners;
        const double area = (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
        m_perX = ((b.*value - a.*value) * (c.y - a.y) - (c.*value - a.*value) * (b.y - a.y)) / area;
        m_perY = ((c.*value - a.*value) * (b.x - a.x) - (b.*value - a.*value) * (c.x - a.x)) / area;
    }

    double at(double x, double y) const { return m_value + m_perX * (x - m_origin.x) + m_perY * (y - m_origin.y); }

private:
    CanvasVertex m_origin;
    double m_value;
    double m_perX;
    double m_perY;
};

/// From where to where a triangle reaches at the height of y.
std::pair<double, double> spanAt(const Corners &corners, double y)
{
    double left = std::numeric_limits<double>::infinity();
    double right = -left;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const CanvasVertex *upper = &corners.at(i);
        const CanvasVertex *lower = &corners.at((i + 1) % corners.size());
        // In the same order for both triangles at an edge, so that both get the same place.
        if (upper->y > lower->y)
            std::swap(upper, lower);
        if (!(upper->y <= y && y < lower->y))
            continue;
        const double x = upper->x + (lower->x - upper->x) * ((y - upper->y) / (lower->y - upper->y));
        left = std::fmin(left, x);
        right = std::fmax(right, x);
    }
    return {left, right};
}

double strengthOf(CanvasStrength kind, double first, double second)
{
    switch (kind) {
    case CanvasStrength::Full:
        break;
    case CanvasStrength::Product:
        return std::fmax(0.0, std::fmin(first * second, 1.0));
    case CanvasStrength::Coverage:
        return std::fmax(0.0, std::fmin(second - std::abs(first), 1.0));
    }
    return 1.0;
}

QRgb blended(QRgb ground, QRgb color, double strength)
{
    const double rest = 1.0 - qAlpha(color) / 255.0 * strength;
    const auto channel = [&](int below, int above) { return qRound(below * rest + above * strength); };
    return qRgba(channel(qRed(ground), qRed(color)), channel(qGreen(ground), qGreen(color)),
                 channel(qBlue(ground), qBlue(color)), channel(qAlpha(ground), qAlpha(color)));
}

} // namespace

PictureCanvas::PictureCanvas(const QRectF &area, double pixelRatio)
    : m_pixelRatio(std::min({pixelRatio, std::sqrt(mostPixels / (area.width() * area.height())),
                             longestSide / area.width(), longestSide / area.height()}))
{
    if (area.isEmpty() || !std::isfinite(area.width()) || !std::isfinite(area.height()))
        return;
    const QRect devicePixels = QRectF(area.topLeft() * m_pixelRatio, area.size() * m_pixelRatio).toAlignedRect();
    m_area = QRectF(QPointF(devicePixels.topLeft()) / m_pixelRatio, QSizeF(devicePixels.size()) / m_pixelRatio);
    m_image = QImage(devicePixels.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
}

void PictureCanvas::setColor(const QColor &color, CanvasStrength strength)
{
    m_color = color;
    m_strength = strength;
}

void PictureCanvas::fillTriangle(const Corners &corners)
{
    Corners pixels = corners;
    for (CanvasVertex &corner : pixels) {
        corner.x = (corner.x - m_area.left()) * m_pixelRatio;
        corner.y = (corner.y - m_area.top()) * m_pixelRatio;
    }
    const auto [top, bottom] = std::minmax({pixels[0].y, pixels[1].y, pixels[2].y});
    const Plane first(pixels, &CanvasVertex::first);
    const Plane second(pixels, &CanvasVertex::second);
    const QRgb color = qPremultiply(m_color.rgba());
    const int end = firstPixel(bottom, m_image.height());
    for (int row = firstPixel(top, m_image.height()); row < end; ++row) {
        const double y = row + 0.5;
        const auto [left, right] = spanAt(pixels, y);
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(row));
        const int rowEnd = firstPixel(right, m_image.width());
        for (int column = firstPixel(left, m_image.width()); column < rowEnd; ++column) {
            const double x = column + 0.5;
            line[column] = blended(line[column], color, strengthOf(m_strength, first.at(x, y), second.at(x, y)));
        }
    }
}

void PictureCanvas::drawThinLines(const QList<QPointF> &points, bool joined)
{
    if (m_image.isNull())
        return;
    QPainter painter(&m_image);
    painter.scale(m_pixelRatio, m_pixelRatio);
    painter.translate(-m_area.topLeft());
    painter.setPen(QPen(m_color, 0.0)); // one pixel whatever the scale
    if (joined)
        painter.drawPolyline(points);
    else
        painter.drawLines(points);
}

} // namespace tamble::client
