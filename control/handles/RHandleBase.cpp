#include "handles/RHandleBase.h"

#include "scrolling/EnclosingView.h"

#include <QtCore/QPointer>
#include <QtCore/QTimerEvent>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

/// Radius of the circle that takes presses, and how far a press may tremble; in density-independent pixels.
constexpr double hitRadius = 22.0;
constexpr double slack = 3.0;
/// Keys that follow each other within this time, in ms, are one gesture.
constexpr int keyPause = 400;

std::uint64_t nextTouch()
{
    static std::uint64_t touches = 0;
    return ++touches;
}

double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

} // namespace

RHandleBase::RHandleBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    setCursor(Qt::PointingHandCursor);
}

void RHandleBase::setReadOnly(bool readOnly)
{
    if (m_readOnly == readOnly)
        return;
    m_readOnly = readOnly;
    setCursor(readOnly ? Qt::ForbiddenCursor : Qt::PointingHandCursor);
    Q_EMIT readOnlyChanged();
}

void RHandleBase::setRightButton(bool takes)
{
    if (m_rightButton == takes)
        return;
    m_rightButton = takes;
    setAcceptedMouseButtons(takes ? Qt::LeftButton | Qt::RightButton : Qt::LeftButton);
    Q_EMIT rightButtonChanged();
}

bool RHandleBase::contains(const QPointF &point) const
{
    if (length(point - QPointF(width() / 2.0, height() / 2.0)) > hitRadius * m_unitLength || !parentItem())
        return false;
    const std::vector<RHandleBase *> handles = handlesOfPlot();
    const int meant = meantHandle(spotsOf(handles), mapToItem(parentItem(), point));
    return meant >= 0 && handles[std::size_t(meant)] == this;
}

std::vector<RHandleBase *> RHandleBase::handlesOfPlot() const
{
    std::vector<RHandleBase *> handles;
    const QList<QQuickItem *> children = parentItem()->childItems();
    for (QQuickItem *child : children) {
        auto *handle = qobject_cast<RHandleBase *>(child);
        if (handle && handle->isVisible() && handle->isEnabled())
            handles.push_back(handle);
    }
    return handles;
}

std::vector<HandleSpot> RHandleBase::spotsOf(const std::vector<RHandleBase *> &handles)
{
    std::vector<HandleSpot> spots;
    spots.reserve(handles.size());
    for (const RHandleBase *handle : handles) {
        const QPointF middle(handle->width() / 2.0, handle->height() / 2.0);
        spots.push_back({handle->position() + middle, handle->m_touched});
    }
    return spots;
}

QPointF RHandleBase::inPlot(const QPointF &scenePoint) const
{
    return parentItem() ? parentItem()->mapFromScene(scenePoint) : scenePoint;
}

void RHandleBase::open()
{
    if (std::exchange(m_changing, true))
        return;
    Q_EMIT changingChanged();
    Q_EMIT begun();
}

void RHandleBase::close()
{
    m_keysEnd.stop();
    if (!std::exchange(m_changing, false))
        return;
    Q_EMIT ended();
    Q_EMIT changingChanged();
}

void RHandleBase::cancelChange()
{
    m_keysEnd.stop();
    if (!std::exchange(m_changing, false))
        return;
    Q_EMIT canceled();
    Q_EMIT changingChanged();
}

void RHandleBase::stepBy(qreal right, qreal up, bool fine)
{
    const QPointer<RHandleBase> self(this);
    open();
    if (!self)
        return;
    m_keysEnd.start(keyPause, this);
    Q_EMIT stepped(right, up, fine);
    // Keys may take it out of a page that scrolls.
    if (self && hasActiveFocus())
        EnclosingView::revealEverywhere(*this, boundingRect());
}

void RHandleBase::page(qreal up)
{
    const QPointer<RHandleBase> self(this);
    open();
    if (!self)
        return;
    m_keysEnd.start(keyPause, this);
    Q_EMIT paged(up);
}

void RHandleBase::reset()
{
    if (!m_readOnly)
        Q_EMIT resetRequested();
}

// Its second press has taken hold and leads no further.
void RHandleBase::resetByDoubleClick()
{
    m_goOn.stop();
    reset();
    abort();
}

void RHandleBase::take(const QPointF &point, Hold hold)
{
    close();
    m_goOn.stop();
    const std::vector<RHandleBase *> handles = parentItem() ? handlesOfPlot() : std::vector<RHandleBase *>();
    m_wasTouchedLast = m_touched > 0 && std::ranges::all_of(handles, [this](const RHandleBase *other) {
                           return other->m_touched <= m_touched;
                       });
    m_touched = nextTouch();
    m_pressed = point;
    m_hold = hold;
    const bool turns = hold == Hold::Turn;
    const bool jumps = m_jumpsUnderPointer && !turns;
    m_drag.begin(point, turns ? point : m_place, jumps ? HandleGrip::JumpsUnder : HandleGrip::KeepsOffset,
                 slack * m_unitLength);
    setKeyFocus(false);
    Q_EMIT draggingChanged();
    forceActiveFocus(Qt::MouseFocusReason);
    Q_EMIT taken();
}

void RHandleBase::follow(const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    const DragKeys keys{modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier)};
    const std::optional<QPointF> place = m_drag.moved(point, keys);
    if (!place || m_readOnly)
        return;
    open();
    if (m_hold == Hold::Move)
        Q_EMIT movedTo(place->x(), place->y(), keys.fine);
    else if (m_hold == Hold::Turn && m_turnable)
        Q_EMIT turned(place->y() - m_pressed.y());
}

void RHandleBase::release()
{
    if (!isDragging())
        return;
    if (m_wasTouchedLast && !m_drag.hasMoved())
        m_goOn.start(QGuiApplication::styleHints()->mouseDoubleClickInterval(), this);
    close();
    drop();
}

void RHandleBase::abort()
{
    if (!isDragging())
        return;
    cancelChange();
    drop();
}

void RHandleBase::drop()
{
    if (!isDragging())
        return; // by a page that answered the end of the change
    m_touchId = -1;
    Q_EMIT dropped();
    m_hold = Hold::None;
    Q_EMIT draggingChanged();
}

void RHandleBase::goOnInStack()
{
    if (!parentItem())
        return;
    const std::vector<RHandleBase *> handles = handlesOfPlot();
    const auto self = std::ranges::find(handles, this);
    if (self == handles.end() || isDragging())
        return;
    const int next = nextInStack(spotsOf(handles), m_pressed, int(self - handles.begin()));
    if (next < 0)
        return;
    RHandleBase *handle = handles[std::size_t(next)];
    handle->m_touched = nextTouch();
    handle->forceActiveFocus(Qt::MouseFocusReason);
}

void RHandleBase::mousePressEvent(QMouseEvent *event)
{
    if (isDragging())
        return; // the other button
    setKeepMouseGrab(true);
    take(inPlot(event->scenePosition()), event->button() == Qt::RightButton ? Hold::Turn : Hold::Move);
}

void RHandleBase::mouseMoveEvent(QMouseEvent *event)
{
    if (isDragging())
        follow(inPlot(event->scenePosition()), event->modifiers());
}

void RHandleBase::mouseReleaseEvent(QMouseEvent *event)
{
    setKeepMouseGrab(false);
    const Qt::MouseButton held = isTurning() ? Qt::RightButton : Qt::LeftButton;
    if (event->button() == held)
        release();
}

void RHandleBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        resetByDoubleClick();
}

void RHandleBase::mouseUngrabEvent()
{
    setKeepMouseGrab(false);
    if (m_touchId < 0)
        abort();
}

void RHandleBase::touchEvent(QTouchEvent *event)
{
    for (const QEventPoint &point : event->points()) {
        const QPointF place = inPlot(point.scenePosition());
        if (point.state() == QEventPoint::Pressed && !isDragging() && contains(mapFromScene(point.scenePosition()))) {
            setKeepTouchGrab(true);
            take(place, Hold::Move);
            m_touchId = point.id();
            const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
            const bool isSecondTap = m_sinceTap.isValid() && m_sinceTap.elapsed() < interval;
            m_sinceTap.invalidate();
            if (isSecondTap)
                resetByDoubleClick();
        } else if (point.id() != m_touchId) {
            continue;
        } else if (point.state() == QEventPoint::Updated) {
            follow(place, event->modifiers());
        } else if (point.state() == QEventPoint::Released) {
            if (!m_drag.hasMoved())
                m_sinceTap.start();
            release();
        }
    }
}

void RHandleBase::touchUngrabEvent()
{
    setKeepTouchGrab(false);
    if (m_touchId >= 0)
        abort();
}

void RHandleBase::hoverEnterEvent(QHoverEvent *)
{
    setHovered(true);
}

void RHandleBase::hoverLeaveEvent(QHoverEvent *)
{
    setHovered(false);
}

void RHandleBase::wheelEvent(QWheelEvent *event)
{
    // Without Ctrl the wheel is the plot's.
    const bool isMeant = m_takesWheel && !m_readOnly && !isDragging();
    event->setAccepted(isMeant && event->modifiers().testFlag(Qt::ControlModifier));
    if (!event->isAccepted())
        return;
    m_wheelRest += event->angleDelta().y();
    if (const int steps = m_wheelRest / QWheelEvent::DefaultDeltasPerStep; steps != 0) {
        m_wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
        page(steps);
    }
}

void RHandleBase::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers known = Qt::ShiftModifier | Qt::ControlModifier | Qt::KeypadModifier;
    const bool isEscape = event->key() == Qt::Key_Escape;
    event->ignore();
    if (event->modifiers() & ~known || ((m_readOnly || isDragging()) && !isEscape))
        return;
    event->accept();
    const bool fine = event->modifiers().testFlag(Qt::ShiftModifier);
    const double size = fine ? 0.2 : event->modifiers().testFlag(Qt::ControlModifier) ? 6.0 : 1.0;
    setKeyFocus(!isDragging());
    switch (event->key()) {
    case Qt::Key_Right:
        return stepBy(size, 0.0, fine);
    case Qt::Key_Left:
        return stepBy(-size, 0.0, fine);
    case Qt::Key_Up:
        return stepBy(0.0, size, fine);
    case Qt::Key_Down:
        return stepBy(0.0, -size, fine);
    case Qt::Key_PageUp:
        return page(1.0);
    case Qt::Key_PageDown:
        return page(-1.0);
    case Qt::Key_End:
        return reset();
    case Qt::Key_Escape:
        event->setAccepted(isDragging() || m_changing);
        cancelChange();
        return drop();
    default:
        event->ignore();
    }
}

void RHandleBase::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    setKeyFocus(!isDragging() && event->reason() != Qt::MouseFocusReason);
}

void RHandleBase::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    m_goOn.stop();
    setKeyFocus(false);
    if (!isDragging())
        close();
}

void RHandleBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_keysEnd.timerId()) {
        close();
    } else if (event->timerId() == m_goOn.timerId()) {
        m_goOn.stop();
        goOnInStack();
    } else {
        QQuickItem::timerEvent(event);
    }
}

void RHandleBase::setHovered(bool hovered)
{
    if (std::exchange(m_hovered, hovered) != hovered)
        Q_EMIT hoveredChanged();
}

void RHandleBase::setKeyFocus(bool keyFocus)
{
    if (std::exchange(m_keyFocus, keyFocus) != keyFocus)
        Q_EMIT keyFocusChanged();
}

} // namespace tamble::client
