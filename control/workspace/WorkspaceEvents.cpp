#include "base/Ancestor.h"
#include "base/InputMeaning.h"
#include "pointer/RMouseDetection.h"
#include "workspace/DroppedData.h"
#include "workspace/WorksheetBase.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <QtGui/QDropEvent>
#include <QtGui/QHoverEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>
#include <QtQuick/QQuickWindow>

#include <utility>

// What Qt tells a workspace about the pointer, and about what becomes of the item.

namespace tamble::client {

namespace {

PointerAt pointerOf(const QMouseEvent &event)
{
    return {event.position(), event.modifiers()};
}

} // namespace

void WorkspaceBase::updateInput()
{
    setAcceptedMouseButtons(m_interactive ? Qt::LeftButton | Qt::MiddleButton | Qt::RightButton : Qt::NoButton);
    setAcceptHoverEvents(m_interactive);
    setAcceptTouchEvents(m_interactive);
    setFlag(ItemAcceptsDrops, m_interactive);
}

void WorkspaceBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    const bool isGone = change == ItemSceneChange ||
                        ((change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) && !data.boolValue);
    const QPointer<WorkspaceBase> self(this);
    if (change == ItemSceneChange) {
        disconnect(m_focusWatch);
        if (data.window)
            m_focusWatch =
                connect(data.window, &QQuickWindow::activeFocusItemChanged, this, &WorkspaceBase::followFocus);
    }
    if (isGone)
        cancelGesture();
    if (!self)
        return;
    if (change == ItemVisibleHasChanged && data.boolValue)
        placeAllItems();
    if (change == ItemParentHasChanged || change == ItemSceneChange) {
        tellSheet();
        polish();
    }
}

// Children of its own a page notices by itself, but not what is put into them.
void WorkspaceBase::tellSheet()
{
    for (auto *sheet = nearestAncestor<WorksheetBase>(*this); sheet; sheet = nearestAncestor<WorksheetBase>(*sheet))
        sheet->seekWorkspace();
}

bool WorkspaceBase::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // During a gesture Esc means that, whatever shortcut a page has for it.
        const bool isEscape = static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
        if (isEscape && m_input->isUnderWay()) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::NativeGesture && m_interactive) {
        const auto &gesture = *static_cast<QNativeGestureEvent *>(event);
        if (gesture.gestureType() == Qt::ZoomNativeGesture)
            zoomTo(zoom() * (1.0 + gesture.value()), mapFromScene(gesture.scenePosition()));
        else if (gesture.gestureType() == Qt::PanNativeGesture)
            pan(-gesture.delta());
        event->accept();
        return true;
    }
    return QQuickItem::event(event);
}

// While Space is held the left button pans, also where a control on the plane would take it.
bool WorkspaceBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || !m_input->isSpaceHeld() || !m_interactive)
        return QQuickItem::childMouseEventFilter(item, event);
    const auto &mouse = *static_cast<QMouseEvent *>(event);
    grabMouse();
    setKeepMouseGrab(true);
    m_input->press({mapFromScene(mouse.scenePosition()), mouse.modifiers()}, mouse.button(), false);
    return true;
}

void WorkspaceBase::mousePressEvent(QMouseEvent *event)
{
    const QPointer<WorkspaceBase> self(this);
    setKeepMouseGrab(true);
    if (!isByFinger(*event)) {
        setPointer(event->position());
        setHovered(true); // a pointer that has not moved since the window came is here all the same
    }
    if (self)
        m_input->press(pointerOf(*event), event->button(), isByFinger(*event));
}

void WorkspaceBase::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<WorkspaceBase> self(this);
    setPointer(event->position());
    if (self)
        m_input->move(pointerOf(*event));
}

void WorkspaceBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton)
        setKeepMouseGrab(false);
    m_input->release(pointerOf(*event));
}

void WorkspaceBase::mouseDoubleClickEvent(QMouseEvent *)
{
    m_input->doubleClick();
}

void WorkspaceBase::mouseUngrabEvent()
{
    setKeepMouseGrab(false);
    m_input->cancelPointer();
}

void WorkspaceBase::touchEvent(QTouchEvent *event)
{
    if (!m_interactive || event->device()->type() == QInputDevice::DeviceType::TouchPad) {
        event->ignore();
        return;
    }
    event->accept();
    setKeepTouchGrab(event->type() != QEvent::TouchEnd && event->type() != QEvent::TouchCancel);
    if (event->type() == QEvent::TouchCancel)
        m_input->cancelPointer();
    else
        m_input->touch(*event);
}

void WorkspaceBase::touchUngrabEvent()
{
    m_input->cancelPointer();
}

void WorkspaceBase::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_interactive);
    if (m_interactive)
        m_input->wheel(*event);
}

void WorkspaceBase::hoverEnterEvent(QHoverEvent *event)
{
    hoverMoveEvent(event);
}

void WorkspaceBase::hoverMoveEvent(QHoverEvent *event)
{
    const QPointer<WorkspaceBase> self(this);
    setPointer(event->position());
    if (self)
        setHovered(true);
}

void WorkspaceBase::hoverLeaveEvent(QHoverEvent *)
{
    setHovered(false);
}

void WorkspaceBase::setPointer(const QPointF &pixel)
{
    if (std::exchange(m_pointer, pixel) != pixel)
        Q_EMIT pointerPositionChanged();
}

void WorkspaceBase::updatePointerInside()
{
    const bool isInside = m_detection->containsMouse();
    if (std::exchange(m_pointerInside, isInside) != isInside)
        Q_EMIT pointerInsideChanged();
}

void WorkspaceBase::setHovered(bool isHovered)
{
    m_isHovered = isHovered;
    updateHovered();
}

void WorkspaceBase::updateHovered()
{
    if (m_move)
        return;
    WorkspaceItemBase *hovered = m_isHovered ? m_items->at(pointerPosition()) : nullptr;
    WorkspaceItemBase *before = std::exchange(m_hoveredItem, hovered);
    if (before == hovered)
        return;
    const QPointer<WorkspaceItemBase> entered = hovered;
    if (before)
        before->setState(&WorkspaceItemBase::m_hovered, false, &WorkspaceItemBase::hoveredChanged);
    if (entered)
        entered->setState(&WorkspaceItemBase::m_hovered, true, &WorkspaceItemBase::hoveredChanged);
}

void WorkspaceBase::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(m_interactive);
}

void WorkspaceBase::dropEvent(QDropEvent *event)
{
    if (!m_interactive) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT dropped(m_view.toPlane(event->position()), droppedData(*event->mimeData()));
}

} // namespace tamble::client
