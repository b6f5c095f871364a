#include "workspace/WorkspaceView.h"

#include "pointer/RMouseDetection.h"
#include "workspace/Snapping.h"

#include <QtCore/QPointer>

#include <cmath>
#include <utility>

namespace tamble::client {

WorkspaceView::WorkspaceView(QQuickItem *parent)
    : QQuickItem(parent)
    , m_detection(new RMouseDetection(this))
    , m_plane(new QQuickItem(this))
{
    m_plane->setTransformOrigin(TopLeft);
    connect(m_detection, &RMouseDetection::containsMouseChanged, this, &WorkspaceView::updatePointerInside);
    const auto follow = [this] { setPointer(QPointF(m_detection->mouseX(), m_detection->mouseY())); };
    connect(m_detection, &RMouseDetection::mouseXChanged, this, follow);
    connect(m_detection, &RMouseDetection::mouseYChanged, this, follow);
    placePlane();
}

WorkspaceView::~WorkspaceView()
{
    m_detection->disconnect(this);
}

template <typename Change>
void WorkspaceView::changeView(Change change)
{
    const PlaneView before = m_view;
    change(m_view);
    if (isComponentComplete())
        m_view.clamp();
    if (before == m_view)
        return;
    placePlane();
    const QPointer<WorkspaceView> self(this);
    const PlaneView now = m_view;
    if (before.unit() != now.unit())
        unitChange();
    const auto tellIf = [&self](bool hasChanged, void (WorkspaceView::*signal)()) {
        if (hasChanged && self)
            Q_EMIT(self->*signal)();
    };
    tellIf(before.plane() != now.plane(), &WorkspaceView::planeRectChanged);
    tellIf(before.unit() != now.unit(), &WorkspaceView::unitChanged);
    tellIf(before.minimumZoom() != now.minimumZoom(), &WorkspaceView::minimumZoomChanged);
    tellIf(before.maximumZoom() != now.maximumZoom(), &WorkspaceView::maximumZoomChanged);
    tellIf(before.zoom() != now.zoom(), &WorkspaceView::zoomChanged);
    tellIf(before.view().x() != now.view().x(), &WorkspaceView::viewXChanged);
    tellIf(before.view().y() != now.view().y(), &WorkspaceView::viewYChanged);
    tellIf(self && self->m_pointerInside, &WorkspaceView::pointerPositionChanged);
    if (!self)
        return;
    polish();
    viewChange();
}

void WorkspaceView::placePlane()
{
    m_plane->setPosition(-m_view.view() * m_view.scale());
    m_plane->setScale(m_view.zoom());
    const QPointF corner = m_view.plane().bottomRight() * m_view.unit();
    m_plane->setSize(QSizeF(corner.x(), corner.y()));
}

void WorkspaceView::setPlaneRect(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.setPlane(rect); });
}

void WorkspaceView::setUnit(qreal unit)
{
    changeView([unit](PlaneView &view) { view.setUnit(unit); });
}

void WorkspaceView::setZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setZoom(zoom); });
}

void WorkspaceView::setMinimumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMinimumZoom(zoom); });
}

void WorkspaceView::setMaximumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMaximumZoom(zoom); });
}

void WorkspaceView::setViewX(qreal x)
{
    changeView([x](PlaneView &view) { view.setView(QPointF(x, view.view().y())); });
}

void WorkspaceView::setViewY(qreal y)
{
    changeView([y](PlaneView &view) { view.setView(QPointF(view.view().x(), y)); });
}

void WorkspaceView::pan(const QPointF &pixels)
{
    changeView([&pixels](PlaneView &view) { view.pan(pixels); });
}

void WorkspaceView::zoomTo(qreal factor, const QPointF &anchor)
{
    changeView([factor, &anchor](PlaneView &view) { view.zoomAbout(factor, anchor); });
}

void WorkspaceView::ensureVisible(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.ensureVisible(rect); });
}

void WorkspaceView::fit(const QRectF &rect, double mostZoom)
{
    changeView([&rect, mostZoom](PlaneView &view) { view.fit(rect, mostZoom); });
}

void WorkspaceView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    m_detection->setSize(newGeometry.size());
    changeView([&newGeometry](PlaneView &view) { view.setViewport(newGeometry.size()); });
}

void WorkspaceView::componentComplete()
{
    QQuickItem::componentComplete();
    changeView([](PlaneView &) {});
    polish();
}

void WorkspaceView::setGridSize(qreal size)
{
    if (std::isfinite(size) && size >= 0.0 && std::exchange(m_gridSize, size) != size)
        Q_EMIT gridSizeChanged();
}

void WorkspaceView::setSnapDistance(qreal pixels)
{
    if (std::isfinite(pixels) && std::exchange(m_snapDistance, pixels) != pixels)
        Q_EMIT snapDistanceChanged();
}

QPointF WorkspaceView::snapped(const QPointF &point) const
{
    const double grid = m_snapToGrid ? m_gridSize : 0.0;
    return QPointF(snappedToGrid(point.x(), grid), snappedToGrid(point.y(), grid));
}

SnapRules WorkspaceView::snapRules(bool isSuspended) const
{
    SnapRules rules{m_view.plane()};
    if (m_snapToItems && !isSuspended)
        rules.distance = m_snapDistance / m_view.scale();
    if (m_snapToGrid && !isSuspended)
        rules.grid = m_gridSize;
    return rules;
}

void WorkspaceView::setPointer(const QPointF &pixel)
{
    if (std::exchange(m_pointer, pixel) != pixel)
        Q_EMIT pointerPositionChanged();
}

void WorkspaceView::updatePointerInside()
{
    const bool isInside = m_detection->containsMouse();
    if (std::exchange(m_pointerInside, isInside) != isInside)
        Q_EMIT pointerInsideChanged();
}

} // namespace tamble::client
