#include "workspace/PlaneView.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// What zoom factors that make no sense are brought to.
constexpr double leastZoom = 0.01;
constexpr double mostZoom = 100.0;

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isFinite(const QRectF &rect)
{
    return isFinite(rect.topLeft()) && isFinite(rect.bottomRight());
}

bool assignPositive(double &number, double value)
{
    const bool isUsable = std::isfinite(value) && value > 0.0;
    if (isUsable)
        number = value;
    return isUsable;
}

double clampedStart(double start, double seenLength, double planeStart, double planeLength, double least)
{
    if (planeLength <= seenLength)
        return planeStart - (seenLength - planeLength) / 2.0;
    const double reachable = std::min(least, seenLength);
    return std::clamp(start, planeStart - seenLength + reachable, planeStart + planeLength - reachable);
}

double startToShow(double start, double seenLength, double from, double to)
{
    return std::min(std::max(start, to - seenLength), from);
}

} // namespace

bool PlaneView::setPlane(const QRectF &plane)
{
    if (!isFinite(plane) || plane.isEmpty())
        return false;
    m_plane = plane;
    return true;
}

bool PlaneView::setViewport(const QSizeF &size)
{
    if (!std::isfinite(size.width()) || !std::isfinite(size.height()))
        return false;
    m_viewport = size.expandedTo(QSizeF(0.0, 0.0));
    return true;
}

bool PlaneView::setUnit(double unit)
{
    return assignPositive(m_unit, unit);
}

bool PlaneView::setMinimumZoom(double zoom)
{
    return assignPositive(m_minimumZoom, zoom);
}

bool PlaneView::setMaximumZoom(double zoom)
{
    return assignPositive(m_maximumZoom, zoom);
}

bool PlaneView::setZoom(double zoom)
{
    if (!std::isfinite(zoom))
        return false;
    m_zoom = std::clamp(zoom, leastZoom, mostZoom);
    return true;
}

bool PlaneView::setView(const QPointF &view)
{
    if (!isFinite(view))
        return false;
    m_view = view;
    return true;
}

bool PlaneView::zoomAbout(double zoom, const QPointF &anchor)
{
    if (!std::isfinite(zoom) || !isFinite(anchor))
        return false;
    const QPointF held = toPlane(anchor);
    m_zoom = limited(zoom);
    m_view = held - anchor / scale();
    return true;
}

bool PlaneView::fit(const QRectF &rect, double limit)
{
    if (!isFinite(rect) || m_viewport.isEmpty())
        return false;
    const QSizeF room = (m_viewport - QSizeF(2.0 * fitMargin, 2.0 * fitMargin)).expandedTo(QSizeF(1.0, 1.0)) / m_unit;
    double zoom = limit;
    if (rect.width() > 0.0)
        zoom = std::min(zoom, room.width() / rect.width());
    if (rect.height() > 0.0)
        zoom = std::min(zoom, room.height() / rect.height());
    m_zoom = limited(zoom);
    const QSizeF seen = m_viewport / scale();
    m_view = rect.center() - QPointF(seen.width(), seen.height()) / 2.0;
    return true;
}

void PlaneView::ensureVisible(const QRectF &rect)
{
    if (!isFinite(rect))
        return;
    const QRectF seen = this->seen();
    m_view = QPointF(startToShow(m_view.x(), seen.width(), rect.left(), rect.right()),
                     startToShow(m_view.y(), seen.height(), rect.top(), rect.bottom()));
}

void PlaneView::pan(const QPointF &pixels)
{
    if (isFinite(pixels))
        m_view += pixels / scale();
}

void PlaneView::clamp()
{
    m_zoom = limited(m_zoom);
    if (m_viewport.isEmpty())
        return;
    const QSizeF seen = m_viewport / scale();
    const double least = leastVisible / scale();
    m_view = QPointF(clampedStart(m_view.x(), seen.width(), m_plane.x(), m_plane.width(), least),
                     clampedStart(m_view.y(), seen.height(), m_plane.y(), m_plane.height(), least));
}

double PlaneView::limited(double zoom) const
{
    const double least = std::clamp(m_minimumZoom, leastZoom, mostZoom);
    return std::clamp(zoom, least, std::clamp(m_maximumZoom, least, mostZoom));
}

} // namespace tamble::client
