#include "workspace/WorkspaceSurface.h"

#include "base/InputMeaning.h"
#include "workspace/DroppedData.h"
#include "workspace/WorkspaceInput.h"

#include <QtCore/QPointer>
#include <QtGui/QDropEvent>
#include <QtGui/QHoverEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>

#include <utility>

namespace tamble::client {

namespace {

PointerAt pointerOf(const QMouseEvent &event)
{
    return {event.position(), event.modifiers()};
}

} // namespace

WorkspaceSurface::WorkspaceSurface(QQuickItem *parent)
    : WorkspaceView(parent)
{
    takePointer();
}

void WorkspaceSurface::setInteractive(bool interactive)
{
    if (std::exchange(m_interactive, interactive) == interactive)
        return;
    const QPointer<WorkspaceSurface> self(this);
    cancelGesture();
    if (!self)
        return;
    takePointer();
    setHovered(false);
    if (self)
        Q_EMIT interactiveChanged();
}

void WorkspaceSurface::takePointer()
{
    setAcceptedMouseButtons(m_interactive ? Qt::LeftButton | Qt::MiddleButton | Qt::RightButton : Qt::NoButton);
    setAcceptHoverEvents(m_interactive);
    setAcceptTouchEvents(m_interactive);
    setFlag(ItemAcceptsDrops, m_interactive);
}

void WorkspaceSurface::cancelGesture()
{
    input().cancel();
}

void WorkspaceSurface::holdSpace(bool isHeld)
{
    input().holdSpace(isHeld);
    setFiltersChildMouseEvents(isHeld);
}

void WorkspaceSurface::viewChange()
{
    input().viewChange();
}

bool WorkspaceSurface::event(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture && m_interactive) {
        const auto &gesture = *static_cast<QNativeGestureEvent *>(event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture)
            zoomTo(zoom() * (1.0 + gesture.value()), mapFromScene(gesture.scenePosition()));
        else if (gesture.gestureType() == Qt::PanNativeGesture)
            pan(-gesture.delta());
        event->accept();
        return true;
    }
    return WorkspaceView::event(event);
}

// While Space is held the left button pans, also where a control on the plane would take it.
bool WorkspaceSurface::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || !input().isSpaceHeld() || !m_interactive)
        return WorkspaceView::childMouseEventFilter(item, event);
    const auto &mouse = *static_cast<QMouseEvent *>(event);
    grabMouse();
    setKeepMouseGrab(true);
    input().press({mapFromScene(mouse.scenePosition()), mouse.modifiers()}, mouse.button(), false);
    return true;
}

void WorkspaceSurface::mousePressEvent(QMouseEvent *event)
{
    const QPointer<WorkspaceSurface> self(this);
    setKeepMouseGrab(true);
    if (!isByFinger(*event)) {
        setPointer(event->position());
        setHovered(true); // a pointer that has not moved since the window came is here all the same
    }
    if (self)
        input().press(pointerOf(*event), event->button(), isByFinger(*event));
}

void WorkspaceSurface::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<WorkspaceSurface> self(this);
    setPointer(event->position());
    if (self)
        input().move(pointerOf(*event));
}

void WorkspaceSurface::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton)
        setKeepMouseGrab(false);
    input().release(pointerOf(*event));
}

void WorkspaceSurface::mouseDoubleClickEvent(QMouseEvent *)
{
    input().doubleClick();
}

void WorkspaceSurface::mouseUngrabEvent()
{
    setKeepMouseGrab(false);
    input().cancelPointer();
}

void WorkspaceSurface::touchEvent(QTouchEvent *event)
{
    if (!m_interactive || event->device()->type() == QInputDevice::DeviceType::TouchPad) {
        event->ignore();
        return;
    }
    event->accept();
    setKeepTouchGrab(event->type() != QEvent::TouchEnd && event->type() != QEvent::TouchCancel);
    if (event->type() == QEvent::TouchCancel)
        input().cancelPointer();
    else
        input().touch(*event);
}

void WorkspaceSurface::touchUngrabEvent()
{
    input().cancelPointer();
}

void WorkspaceSurface::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_interactive);
    if (m_interactive)
        input().wheel(*event);
}

void WorkspaceSurface::hoverEnterEvent(QHoverEvent *event)
{
    hoverMoveEvent(event);
}

void WorkspaceSurface::hoverMoveEvent(QHoverEvent *event)
{
    const QPointer<WorkspaceSurface> self(this);
    setPointer(event->position());
    if (self)
        setHovered(true);
}

void WorkspaceSurface::hoverLeaveEvent(QHoverEvent *)
{
    setHovered(false);
}

void WorkspaceSurface::setHovered(bool isHovered)
{
    m_isHovered = isHovered;
    hoverChange();
}

void WorkspaceSurface::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(m_interactive);
}

void WorkspaceSurface::dropEvent(QDropEvent *event)
{
    if (!m_interactive) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT dropped(mapToPlane(event->position()), droppedData(*event->mimeData()));
}

} // namespace tamble::client
