#include "dragging/DragSource.h"

#include "base/InputMeaning.h"
#include "dragging/DragGhost.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimerEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

DragSource::DragSource(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

DragSource::~DragSource()
{
    if (!m_ghost)
        return;
    // Later, since what it was dropped on may have deleted this.
    m_ghost->setVisible(false);
    m_ghost->deleteLater();
}

DragGhost *DragSource::ghost() const
{
    return m_ghost;
}

bool DragSource::press(const QMouseEvent &event)
{
    if (m_phase == Phase::Dragging || event.button() != Qt::LeftButton ||
        !beginsAt(mapFromScene(event.scenePosition())))
        return false;
    m_phase = Phase::Pressed;
    m_pressedAt = event.scenePosition();
    if (isByFinger(event) && m_finger == Finger::Waits)
        m_longPress.start(longPressMs, this);
    return true;
}

/// Whether the event is part of a drag.
bool DragSource::follow(const QPointF &scenePosition)
{
    const QPointer<DragSource> guard(this);
    const QPointF way = scenePosition - m_pressedAt;
    if (m_phase == Phase::Pressed && way.manhattanLength() > QGuiApplication::styleHints()->startDragDistance()) {
        // A finger that moves before its time scrolls.
        if (m_longPress.isActive())
            finish(Phase::Idle);
        else
            begin();
    }
    if (!guard || m_phase != Phase::Dragging)
        return !guard || m_phase == Phase::Over;
    holdPointer();
    const QPointF shown = dragMoves(way);
    if (guard && m_ghost)
        m_ghost->moveBy(shown);
    return true;
}

/// Whether the event ends a drag.
bool DragSource::release()
{
    const Phase former = m_phase;
    if (former != Phase::Dragging) {
        finish(Phase::Idle);
        return former == Phase::Over;
    }
    holdPointer(); // of a finger that has not moved since the long press
    const QPointer<DragSource> guard(this);
    const QPointer<DragGhost> picture(m_ghost);
    const bool isTaken = dragEnds();
    if (picture && isTaken)
        delete picture;
    else if (picture)
        picture->sendBack();
    if (guard)
        finish(Phase::Idle);
    return true;
}

void DragSource::begin()
{
    m_longPress.stop();
    QQuickItem *item = pictured();
    if (!item || !item->window()) {
        finish(Phase::Idle);
        return;
    }
    m_phase = Phase::Dragging;
    m_ghost = new DragGhost(*item, pictureOpacity());
    // The focus may be anywhere.
    QCoreApplication::instance()->installEventFilter(this);
    const QPointer<DragSource> guard(this);
    dragBegins();
    if (guard)
        Q_EMIT draggingChanged();
}

void DragSource::cancelDrag()
{
    if (m_phase != Phase::Dragging)
        return;
    if (m_ghost)
        m_ghost->sendBack();
    const QPointer<DragSource> guard(this);
    finish(Phase::Over);
    if (guard)
        dragIsCanceled();
}

void DragSource::finish(Phase next)
{
    m_longPress.stop();
    m_ghost = nullptr;
    if (next == Phase::Idle) {
        setKeepMouseGrab(false);
        setKeepTouchGrab(false);
        setAcceptTouchEvents(false);
    }
    if (std::exchange(m_phase, next) != Phase::Dragging)
        return;
    QCoreApplication::instance()->removeEventFilter(this);
    Q_EMIT draggingChanged();
}

/// Takes the pointer from a control inside and keeps it from a view around that would scroll.
void DragSource::holdPointer()
{
    if (keepMouseGrab())
        return;
    grabMouse();
    setKeepMouseGrab(true);
    setKeepTouchGrab(true);
}

bool DragSource::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QQuickItem::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        cancelDrag();
    return true;
}

/// Whether a drag takes the event of a control inside.
bool DragSource::takeFromChild(const QMouseEvent &event)
{
    const QPointer<DragSource> guard(this);
    const bool isTaken = follow(event.scenePosition());
    // A finger taken from a control that knows fingers is not made a mouse for this any more.
    if (guard && m_phase == Phase::Dragging && isByFinger(event))
        setAcceptTouchEvents(true);
    return isTaken;
}

bool DragSource::childMouseEventFilter(QQuickItem *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<const QMouseEvent &>(*event));
        return false;
    case QEvent::MouseMove:
        return m_phase != Phase::Idle && takeFromChild(static_cast<const QMouseEvent &>(*event));
    case QEvent::MouseButtonRelease:
        return m_phase != Phase::Idle && release();
    case QEvent::UngrabMouse:
        // A view around has begun to scroll.
        if (m_phase == Phase::Pressed)
            finish(Phase::Idle);
        return false;
    default:
        return false;
    }
}

void DragSource::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(press(*event));
    // A view around would scroll before the drag begins.
    const bool keeps = event->isAccepted() && !m_longPress.isActive();
    setKeepMouseGrab(keeps);
    setKeepTouchGrab(keeps);
}

void DragSource::mouseMoveEvent(QMouseEvent *event)
{
    follow(event->scenePosition());
}

void DragSource::mouseReleaseEvent(QMouseEvent *)
{
    release();
}

void DragSource::mouseUngrabEvent()
{
    const QPointer<DragSource> guard(this);
    cancelDrag();
    if (guard)
        finish(Phase::Idle);
}

void DragSource::touchEvent(QTouchEvent *event)
{
    const QEventPoint &finger = event->points().first();
    if (event->type() == QEvent::TouchCancel)
        mouseUngrabEvent();
    else if (finger.state() == QEventPoint::Released)
        release();
    else
        follow(finger.scenePosition());
}

// A finger may be lifted in the same frame in which it was taken from a control inside.
void DragSource::touchUngrabEvent()
{
    mouseUngrabEvent();
}

void DragSource::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_longPress.timerId())
        begin();
    else
        QQuickItem::timerEvent(event);
}

void DragSource::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        cancelDrag();
}

} // namespace tamble::client
