#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace tamble::client {

/// What a viewport shows of a plane: pixel = (plane - view) * zoom * unit. Pixels count from the viewport's top left
/// corner.
///
/// Bad input is given: limits of the zoom may be the wrong way round, and whatever is not finite is refused by the
/// setters, which return false then.
class PlaneView
{
public:
    /// Pixels of the plane that stay visible, in each direction.
    static constexpr double leastVisible = 64.0;
    /// Pixels around what is fitted in.
    static constexpr double fitMargin = 24.0;

    const QRectF &plane() const { return m_plane; }
    const QSizeF &viewport() const { return m_viewport; }
    double unit() const { return m_unit; }
    double zoom() const { return m_zoom; }
    double minimumZoom() const { return m_minimumZoom; }
    double maximumZoom() const { return m_maximumZoom; }
    QPointF view() const { return m_view; }
    /// Pixels per plane unit.
    double scale() const { return m_zoom * m_unit; }
    /// What is seen, in plane units.
    QRectF seen() const { return QRectF(m_view, m_viewport / scale()); }

    bool setPlane(const QRectF &plane);
    bool setViewport(const QSizeF &size);
    bool setUnit(double unit);
    bool setMinimumZoom(double zoom);
    bool setMaximumZoom(double zoom);
    /// About the top left corner.
    bool setZoom(double zoom);
    bool setView(const QPointF &view);

    /// Makes the plane's point at `anchor`, in pixels, stay there.
    bool zoomAbout(double zoom, const QPointF &anchor);
    /// Shows all of `rect` in the middle, with a margin of 24 pixels, at no more than `limit`; within the limits of the
    /// zoom as well.
    bool fit(const QRectF &rect, double limit);
    /// Moves the view as little as possible until it shows `rect`; of one that is too large, its top left part.
    void ensureVisible(const QRectF &rect);
    /// Moves the view by pixels.
    void pan(const QPointF &pixels);

    /// Brings zoom and view within their limits. At least 64 pixels of the plane stay visible, and a plane that is
    /// smaller than the viewport is in its middle. Without a viewport the view is not limited.
    void clamp();

    QPointF toPlane(const QPointF &pixel) const { return m_view + pixel / scale(); }
    QPointF toPixels(const QPointF &point) const { return (point - m_view) * scale(); }

    bool operator==(const PlaneView &) const = default;

private:
    double limited(double zoom) const;

    QRectF m_plane = {0.0, 0.0, 4000.0, 3000.0};
    QSizeF m_viewport = {0.0, 0.0};
    QPointF m_view;
    double m_unit = 1.0;
    double m_zoom = 1.0;
    double m_minimumZoom = 0.2;
    double m_maximumZoom = 4.0;
};

} // namespace tamble::client
