#pragma once

#include "base/ControlExport.h"
#include "workspace/PlaneView.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class RMouseDetection;
struct SnapRules;

/// A plane seen through a viewport: what of it is seen, the grid on it, and where the pointer is.
///
/// Plane coordinates are in units of `unit` pixels at zoom 1: pixel = (plane - view) * zoom * unit. All points and
/// rectangles are in plane units unless pixels are said. Not-a-number is ignored.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceView : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// The plane, in plane units; 0, 0, 4000 by 3000 by default.
    Q_PROPERTY(QRectF planeRect READ planeRect WRITE setPlaneRect NOTIFY planeRectChanged)
    /// Pixels per plane unit at zoom 1.
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// Zoom factor of the view.
    Q_PROPERTY(qreal zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    /// `minimumZoom` and `maximumZoom`: bounds of `zoom`; 0.2 and 4 by default.
    Q_PROPERTY(qreal minimumZoom READ minimumZoom WRITE setMinimumZoom NOTIFY minimumZoomChanged)
    Q_PROPERTY(qreal maximumZoom READ maximumZoom WRITE setMaximumZoom NOTIFY maximumZoomChanged)
    /// `viewX` and `viewY`: point of the plane at the top left corner of the view, in plane units. At least 64 pixels
    /// of the plane stay visible, and a plane smaller than the viewport is in its middle.
    Q_PROPERTY(qreal viewX READ viewX WRITE setViewX NOTIFY viewXChanged)
    Q_PROPERTY(qreal viewY READ viewY WRITE setViewY NOTIFY viewYChanged)
    /// Distance of the grid lines in plane units; 8 by default.
    Q_PROPERTY(qreal gridSize READ gridSize WRITE setGridSize NOTIFY gridSizeChanged)
    /// Whether the grid is shown.
    Q_PROPERTY(bool gridVisible MEMBER m_gridVisible NOTIFY gridVisibleChanged)
    /// Whether what is moved snaps: `snapToGrid` to the grid lines, `snapToItems` to the edges of other items.
    Q_PROPERTY(bool snapToGrid MEMBER m_snapToGrid NOTIFY snapToGridChanged)
    Q_PROPERTY(bool snapToItems MEMBER m_snapToItems NOTIFY snapToItemsChanged)
    /// Distance in pixels within which it snaps to items; 6 by default.
    Q_PROPERTY(qreal snapDistance READ snapDistance WRITE setSnapDistance NOTIFY snapDistanceChanged)
    /// Whether the pointer is over the canvas.
    Q_PROPERTY(bool pointerInside READ pointerInside NOTIFY pointerInsideChanged)
    /// Place of the pointer, in plane units.
    Q_PROPERTY(QPointF pointerPosition READ pointerPosition NOTIFY pointerPositionChanged)
    /// The item whose children lie on the plane: its origin is the plane's, and `zoom` scales it.
    Q_PROPERTY(QQuickItem *plane READ plane CONSTANT)

public:
    explicit WorkspaceView(QQuickItem *parent = nullptr);
    ~WorkspaceView() override;

    QRectF planeRect() const { return m_view.plane(); }
    void setPlaneRect(const QRectF &rect);
    qreal unit() const { return m_view.unit(); }
    void setUnit(qreal unit);
    qreal zoom() const { return m_view.zoom(); }
    void setZoom(qreal zoom);
    qreal minimumZoom() const { return m_view.minimumZoom(); }
    void setMinimumZoom(qreal zoom);
    qreal maximumZoom() const { return m_view.maximumZoom(); }
    void setMaximumZoom(qreal zoom);
    qreal viewX() const { return m_view.view().x(); }
    void setViewX(qreal x);
    qreal viewY() const { return m_view.view().y(); }
    void setViewY(qreal y);
    qreal gridSize() const { return m_gridSize; }
    void setGridSize(qreal size);
    bool snapsToGrid() const { return m_snapToGrid; }
    qreal snapDistance() const { return m_snapDistance; }
    void setSnapDistance(qreal pixels);
    bool pointerInside() const { return m_pointerInside; }
    QPointF pointerPosition() const { return m_view.toPlane(m_pointer); }
    QQuickItem *plane() const { return m_plane; }

    /// The point of the plane at a place in pixels of the workspace.
    Q_INVOKABLE QPointF mapToPlane(const QPointF &point) const { return m_view.toPlane(point); }
    /// The place in pixels of the workspace where a point of the plane is.
    Q_INVOKABLE QPointF mapFromPlane(const QPointF &point) const { return m_view.toPixels(point); }
    /// Zooms; what is at `anchor`, in pixels of the workspace, stays there.
    Q_INVOKABLE void zoomTo(qreal factor, const QPointF &anchor);
    /// Moves the view until it shows a rectangle, as little as possible.
    Q_INVOKABLE void ensureVisible(const QRectF &rect);
    /// The point of the grid that is nearest to a point; the point itself without `snapToGrid`.
    Q_INVOKABLE QPointF snapped(const QPointF &point) const;

    // What gestures ask.

    const PlaneView &view() const { return m_view; }
    /// Moves the view by pixels.
    void pan(const QPointF &pixels);
    /// How what is moved snaps; not at all while that is suspended.
    SnapRules snapRules(bool isSuspended) const;

Q_SIGNALS:
    void planeRectChanged();
    void unitChanged();
    void zoomChanged();
    void minimumZoomChanged();
    void maximumZoomChanged();
    void viewXChanged();
    void viewYChanged();
    void gridSizeChanged();
    void gridVisibleChanged();
    void snapToGridChanged();
    void snapToItemsChanged();
    void snapDistanceChanged();
    void pointerInsideChanged();
    void pointerPositionChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    /// `unit` has changed; not told yet.
    virtual void unitChange() {}
    /// What is seen has changed, and was told.
    virtual void viewChange() {}
    /// Shows a rectangle in the middle, at no more than a zoom.
    void fit(const QRectF &rect, double mostZoom);
    /// The pointer is here, in pixels.
    void setPointer(const QPointF &pixel);

private:
    template <typename Change>
    void changeView(Change change);
    void placePlane();
    void updatePointerInside();

    PlaneView m_view;
    qreal m_gridSize = 8.0;
    qreal m_snapDistance = 6.0;
    bool m_gridVisible = true;
    bool m_snapToGrid = true;
    bool m_snapToItems = true;
    bool m_pointerInside = false;
    QPointF m_pointer;            // in pixels
    RMouseDetection *m_detection; // a child; controls on the plane keep hover events to themselves
    QQuickItem *m_plane;          // a child
};

} // namespace tamble::client
