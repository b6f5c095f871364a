#include "fader/RFaderBase.h"

#include "base/InputMeaning.h"
#include "fader/FaderTouchArea.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QTimerEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int noFinger = -1;
constexpr double touchSlack = 5.0; // pixels that a resting finger may wander

} // namespace

RFaderBase::RFaderBase(QQuickItem *parent)
    : SteppedFader(parent)
    , m_touchArea(new FaderTouchArea(
          this, [this](QTouchEvent *event) { touched(event); },
          [this] {
              if (m_touchId != noFinger)
                  letGo();
          }))
{
    setFiltersChildMouseEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptTouchEvents(false);
    connect(this, &RFaderBase::readOnlyChanged, this, &RFaderBase::letGo);
    connect(this, &RFaderBase::enabledChanged, this, &RFaderBase::letGo);
}

// The base would take the touch area out of the window, and so the finger from it, when nothing is left to let go.
// Nor must the fader answer that it leaves a disabled panel, which enables it once more.
RFaderBase::~RFaderBase()
{
    disconnect(this, nullptr, this, nullptr);
    delete m_touchArea;
}

double RFaderBase::along(const QPointF &point) const
{
    return isVertical() ? height() - point.y() : point.x();
}

bool RFaderBase::isOnHandle(const QPointF &point) const
{
    return handle() && handle()->contains(mapToItem(handle(), point));
}

void RFaderBase::takeHold(Hold hold, const QPointF &point)
{
    finish();
    m_hold = hold;
    m_moved = false;
    m_pressPoint = point;
    m_drag.begin(travelPosition(), along(point));
    setPressed(true);
}

void RFaderBase::jumpTo(const QPointF &point)
{
    const double length = travelLength();
    if (!m_jumpOnTrackPress || isOnHandle(point) || !(length > 0.0))
        return;
    const double travelStart = ((isVertical() ? height() : width()) - length) / 2.0;
    const FaderTravel travel = this->travel();
    edit(travel.rounded(travel.level((along(point) - travelStart) / length), stepSize()));
}

void RFaderBase::drag(const QPointF &point, bool fine)
{
    const double pointer = along(point);
    if (!m_moved) {
        if (pointer == m_drag.pointer())
            return;
        // The device may have moved the handle since the press.
        m_drag.begin(travelPosition(), m_drag.pointer());
        m_moved = true;
    }
    const double speed = !fine ? 1.0 : m_fineFactor > 0.0 ? m_fineFactor : 0.1;
    const double length = travelLength();
    const double asked = m_drag.moved(pointer, length, speed, travelPosition());
    const FaderTravel travel = this->travel();
    double level = travel.rounded(travel.level(asked), fine ? fineStepSize() : stepSize());
    if (!fine && length > 0.0)
        level = travel.held(level, asked, m_detents, m_detentReach / length);
    edit(level);
}

// The grab of the pointer is kept until its end, lest a view behind the fader begins to scroll.
void RFaderBase::dropHandle()
{
    m_hold = Hold::None;
    setPressed(false);
}

void RFaderBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_longPress.timerId()) {
        SteppedFader::timerEvent(event);
        return;
    }
    letGo();
    Q_EMIT contextMenuRequested(m_pressPoint);
}

void RFaderBase::letGo()
{
    m_hold = Hold::None;
    m_touchId = noFinger;
    m_longPress.stop();
    setKeepMouseGrab(false);
    m_touchArea->setKeepTouchGrab(false);
    setPressed(false);
    finish();
}

bool RFaderBase::wantsContextMenu() const
{
    static const QMetaMethod signal = QMetaMethod::fromSignal(&RFaderBase::contextMenuRequested);
    return isSignalConnected(signal);
}

// Mouse

void RFaderBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        event->setAccepted(wantsContextMenu());
        return;
    }
    event->accept();
    if (focusPolicy() & Qt::ClickFocus)
        forceActiveFocus(Qt::MouseFocusReason);
    if (m_hold == Hold::None && canEdit()) {
        setKeepMouseGrab(true);
        takeHold(Hold::Mouse, event->position());
        jumpTo(event->position());
    }
}

void RFaderBase::mouseMoveEvent(QMouseEvent *event)
{
    if (m_hold == Hold::Mouse)
        drag(event->position(), event->modifiers() & Qt::ShiftModifier);
}

void RFaderBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        if (contains(event->position()))
            Q_EMIT contextMenuRequested(event->position());
        return;
    }
    const bool isReset = m_hold == Hold::Mouse && !m_moved && (event->modifiers() & Qt::ControlModifier);
    letGo();
    if (isReset)
        reset();
}

void RFaderBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (m_hold != Hold::Mouse || event->button() != Qt::LeftButton)
        return;
    m_hold = Hold::None; // a double click that slips is no drag
    reset();
}

void RFaderBase::mouseUngrabEvent()
{
    if (m_hold != Hold::Touch)
        letGo();
}

// Touch

void RFaderBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    SteppedFader::geometryChange(newGeometry, oldGeometry);
    m_touchArea->setSize(newGeometry.size());
}

bool RFaderBase::childMouseEventFilter(QQuickItem *child, QEvent *event)
{
    if (child == m_touchArea && event->type() == QEvent::TouchUpdate && m_hold == Hold::Touch) {
        for (const QEventPoint &point : static_cast<QTouchEvent *>(event)->points()) {
            if (point.id() == m_touchId && isOwnMove(point))
                child->setKeepTouchGrab(true);
        }
    }
    return false;
}

bool RFaderBase::isOwnMove(const QEventPoint &point) const
{
    const QPointF way = point.position() - m_pressPoint;
    const double own = std::abs(isVertical() ? way.y() : way.x());
    const double across = std::abs(isVertical() ? way.x() : way.y());
    return own >= touchSlack && own >= across;
}

void RFaderBase::touched(QTouchEvent *event)
{
    if (event->type() == QEvent::TouchCancel || !canEdit()) {
        event->ignore();
        letGo();
        return;
    }
    for (const QEventPoint &point : event->points()) {
        if (point.state() == QEventPoint::Pressed && m_hold == Hold::None)
            touchPressed(point);
        else if (point.id() != m_touchId)
            continue;
        else if (m_hold == Hold::Touch && point.state() == QEventPoint::Updated)
            touchMoved(point, event->modifiers() & Qt::ShiftModifier);
        else if (m_hold == Hold::Touch && point.state() == QEventPoint::Released)
            touchReleased(point);
        else if (point.state() == QEventPoint::Released)
            letGo(); // Esc has taken the handle from the finger
    }
}

void RFaderBase::touchPressed(const QEventPoint &point)
{
    m_touchId = point.id();
    m_touchDecided = false;
    if (wantsContextMenu())
        m_longPress.start(longPressMs, this);
    takeHold(Hold::Touch, point.position());
}

void RFaderBase::touchMoved(const QEventPoint &point, bool fine)
{
    if (!m_touchDecided) {
        const double across =
            isVertical() ? point.position().x() - m_pressPoint.x() : point.position().y() - m_pressPoint.y();
        if (!isOwnMove(point)) {
            if (std::abs(across) >= touchSlack)
                letGo(); // for a view behind that scrolls
            return;
        }
        m_touchDecided = true;
        m_longPress.stop();
        m_touchArea->setKeepTouchGrab(true);
        if (focusPolicy() & Qt::ClickFocus)
            forceActiveFocus(Qt::MouseFocusReason);
        jumpTo(m_pressPoint);
        // What it took to decide does not move the handle.
        m_drag.begin(travelPosition(),
                     m_drag.pointer() + std::copysign(touchSlack, along(point.position()) - m_drag.pointer()));
    }
    drag(point.position(), fine);
}

void RFaderBase::touchReleased(const QEventPoint &point)
{
    const bool isTap = !m_touchDecided;
    if (isTap)
        jumpTo(point.position());
    letGo();
    if (!isTap)
        return;
    if (focusPolicy() & Qt::ClickFocus)
        forceActiveFocus(Qt::MouseFocusReason);
    if (isSecondTap(point.position()))
        reset();
}

bool RFaderBase::isSecondTap(const QPointF &point)
{
    const QStyleHints *hints = QGuiApplication::styleHints();
    const QPointF way = point - m_tapPoint;
    const bool isSecond = m_sinceTap.isValid() && m_sinceTap.elapsed() < hints->mouseDoubleClickInterval() &&
                          way.manhattanLength() < 2.0 * hints->touchDoubleTapDistance();
    m_tapPoint = point;
    if (isSecond)
        m_sinceTap.invalidate();
    else
        m_sinceTap.start();
    return isSecond;
}

} // namespace tamble::client
