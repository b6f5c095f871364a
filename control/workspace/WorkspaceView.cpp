#include "pointer/RMouseDetection.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItems.h"

#include <cmath>
#include <utility>

// How a workspace is seen, and the grid on which its items are put.

namespace tamble::client {

namespace {

// Pixels around the viewport within which items are drawn, for their frames and marks.
constexpr double viewMargin = 16.0;
constexpr double leastDetailedZoom = 0.4;

} // namespace

template <typename Change>
void WorkspaceBase::changeView(Change change)
{
    const PlaneView before = m_view;
    change(m_view);
    if (isComponentComplete())
        m_view.clamp();
    if (before == m_view)
        return;
    placePlane();
    const QPointer<WorkspaceBase> self(this);
    const PlaneView now = m_view;
    if (before.unit() != now.unit())
        m_items->setUnit(now.unit());
    const auto tellIf = [&self](bool hasChanged, void (WorkspaceBase::*signal)()) {
        if (hasChanged && self)
            Q_EMIT(self->*signal)();
    };
    tellIf(before.plane() != now.plane(), &WorkspaceBase::planeRectChanged);
    tellIf(before.unit() != now.unit(), &WorkspaceBase::unitChanged);
    tellIf(before.minimumZoom() != now.minimumZoom(), &WorkspaceBase::minimumZoomChanged);
    tellIf(before.maximumZoom() != now.maximumZoom(), &WorkspaceBase::maximumZoomChanged);
    tellIf(before.zoom() != now.zoom(), &WorkspaceBase::zoomChanged);
    tellIf(before.view().x() != now.view().x(), &WorkspaceBase::viewXChanged);
    tellIf(before.view().y() != now.view().y(), &WorkspaceBase::viewYChanged);
    tellIf(self && self->m_pointerInside, &WorkspaceBase::pointerPositionChanged);
    if (!self)
        return;
    polish();
    m_input->viewChange();
}

void WorkspaceBase::placePlane()
{
    m_plane->setPosition(-m_view.view() * m_view.scale());
    m_plane->setScale(m_view.zoom());
    const QPointF corner = m_view.plane().bottomRight() * m_view.unit();
    m_plane->setSize(QSizeF(corner.x(), corner.y()));
}

void WorkspaceBase::setPlaneRect(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.setPlane(rect); });
}

void WorkspaceBase::setUnit(qreal unit)
{
    changeView([unit](PlaneView &view) { view.setUnit(unit); });
}

void WorkspaceBase::setZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setZoom(zoom); });
}

void WorkspaceBase::setMinimumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMinimumZoom(zoom); });
}

void WorkspaceBase::setMaximumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMaximumZoom(zoom); });
}

void WorkspaceBase::setViewX(qreal x)
{
    changeView([x](PlaneView &view) { view.setView(QPointF(x, view.view().y())); });
}

void WorkspaceBase::setViewY(qreal y)
{
    changeView([y](PlaneView &view) { view.setView(QPointF(view.view().x(), y)); });
}

void WorkspaceBase::pan(const QPointF &pixels)
{
    changeView([&pixels](PlaneView &view) { view.pan(pixels); });
}

void WorkspaceBase::zoomTo(qreal factor, const QPointF &anchor)
{
    changeView([factor, &anchor](PlaneView &view) { view.zoomAbout(factor, anchor); });
}

void WorkspaceBase::ensureVisible(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.ensureVisible(rect); });
}

void WorkspaceBase::fit(const QRectF &rect, double mostZoom)
{
    changeView([&rect, mostZoom](PlaneView &view) { view.fit(rect, mostZoom); });
}

void WorkspaceBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    m_detection->setSize(newGeometry.size());
    changeView([&newGeometry](PlaneView &view) { view.setViewport(newGeometry.size()); });
}

void WorkspaceBase::componentComplete()
{
    QQuickItem::componentComplete();
    changeView([](PlaneView &) {});
    polish();
    if (QAccessible::isActive())
        speak();
}

void WorkspaceBase::updatePolish()
{
    const double margin = viewMargin / m_view.scale();
    const QPointer<WorkspaceBase> self(this);
    m_items->showIn(m_view.seen().adjusted(-margin, -margin, margin, margin), m_view.zoom() >= leastDetailedZoom);
    if (self)
        updateHovered();
}

void WorkspaceBase::setGridSize(qreal size)
{
    if (std::isfinite(size) && size >= 0.0 && std::exchange(m_gridSize, size) != size)
        Q_EMIT gridSizeChanged();
}

void WorkspaceBase::setSnapDistance(qreal pixels)
{
    if (std::isfinite(pixels) && std::exchange(m_snapDistance, pixels) != pixels)
        Q_EMIT snapDistanceChanged();
}

SnapRules WorkspaceBase::snapRules(bool isSuspended) const
{
    SnapRules rules{m_view.plane()};
    if (m_snapToItems && !isSuspended)
        rules.distance = m_snapDistance / m_view.scale();
    if (m_snapToGrid && !isSuspended)
        rules.grid = m_gridSize;
    return rules;
}

} // namespace tamble::client
