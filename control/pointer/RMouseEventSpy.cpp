#include "pointer/RMouseEventSpy.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMetaMethod>
#include <QtCore/QTimerEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>

#include <algorithm>
#include <limits>

namespace tamble::client {

namespace {

RMouseEventSpy::Clock systemClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

RMouseEventSpy::RMouseEventSpy(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock ? std::move(clock) : systemClock())
    , m_lastInput(m_clock())
{}

RMouseEventSpy *RMouseEventSpy::instance()
{
    // Never deleted: windows and engines may still ask for it while static objects go away.
    static auto *const spy = [] {
        auto *const created = new RMouseEventSpy;
        created->install();
        return created;
    }();
    return spy;
}

void RMouseEventSpy::install()
{
    auto *application = QCoreApplication::instance();
    if (!application)
        return;
    application->removeEventFilter(this);
    application->installEventFilter(this);
}

int RMouseEventSpy::idleTime() const
{
    return int(std::min<qint64>(m_clock() - m_lastInput, std::numeric_limits<int>::max()));
}

void RMouseEventSpy::setIdleLimit(int limitMs)
{
    if (m_idleLimit == limitMs)
        return;
    m_idleLimit = limitMs;
    m_idleReported = false;
    updateIdleTimer();
    Q_EMIT idleLimitChanged();
}

bool RMouseEventSpy::eventFilter(QObject *watched, QEvent *event)
{
    // A window passes its events on to its items, each of which would show up here once more.
    if (!watched->isWindowType())
        return false;
    const Window window(static_cast<QWindow *>(watched));
    watch(window, event);
    // Deleted, it can get nothing any more.
    return !window;
}

void RMouseEventSpy::watch(const Window &window, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        noteActivity();
        watchMouse(window, static_cast<QMouseEvent *>(event));
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        noteActivity();
        watchTouch(window, static_cast<QTouchEvent *>(event));
        break;
    case QEvent::Enter:
        point(window, static_cast<QEnterEvent *>(event)->position());
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        leave(window);
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::NativeGesture:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        noteActivity();
        break;
    default:
        break;
    }
}

void RMouseEventSpy::checkIdle()
{
    Q_EMIT idleTimeChanged();
    const int elapsed = idleTime();
    if (m_idleLimit <= 0 || m_idleReported || elapsed < m_idleLimit)
        return;
    m_idleReported = true;
    Q_EMIT idle(elapsed);
}

void RMouseEventSpy::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_idleTimer.timerId()) {
        checkIdle();
        updateIdleTimer();
    } else if (event->timerId() == m_restTimer.timerId()) {
        m_restTimer.stop();
        noteMove(m_position);
    } else {
        QObject::timerEvent(event);
    }
}

void RMouseEventSpy::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&RMouseEventSpy::idleTimeChanged))
        updateIdleTimer();
}

void RMouseEventSpy::updateIdleTimer()
{
    const bool wanted = m_idleLimit > 0 || isSignalConnected(QMetaMethod::fromSignal(&RMouseEventSpy::idleTimeChanged));
    if (!wanted)
        m_idleTimer.stop();
    else if (!m_idleTimer.isActive())
        m_idleTimer.start(1000, this);
}

void RMouseEventSpy::watchMouse(const Window &window, QMouseEvent *event)
{
    Q_EMIT mouseEvent(event);
    // The finger behind such an event has been reported by its touch event.
    if (event->source() == Qt::MouseEventSynthesizedByQt)
        return;

    const QPointF position = event->globalPosition();
    point(window, event->position());
    notePosition(position);
    notePressed(m_mousePressed, event->buttons() != Qt::NoButton);
    if (event->type() == QEvent::MouseMove) {
        noteMove(position);
    } else if (event->type() == QEvent::MouseButtonRelease) {
        Q_EMIT mouseReleased(position, event->button());
    } else if (event->type() == QEvent::MouseButtonPress) { // a double click comes in addition to its second press
        Q_EMIT pressedInWindow(window, event->position(), event->button());
        Q_EMIT mousePressed(position, event->button());
    }
}

void RMouseEventSpy::watchTouch(const Window &window, QTouchEvent *event)
{
    const auto &points = event->points();
    const auto isDown = [](const QEventPoint &point) { return point.state() != QEventPoint::Released; };
    const bool isCanceled = event->type() == QEvent::TouchCancel;
    notePressed(m_touchPressed, !isCanceled && std::any_of(points.begin(), points.end(), isDown));

    // The end of an earlier touch may have got lost with its window.
    if (event->type() == QEvent::TouchBegin && m_finger.first == event->pointingDevice())
        m_finger = {};
    for (const QEventPoint &point : points) {
        if (point.state() != QEventPoint::Stationary || isCanceled)
            watchFinger(window, point, isCanceled);
    }
}

void RMouseEventSpy::watchFinger(const Window &window, const QEventPoint &finger, bool isCanceled)
{
    const QPointF position = finger.globalPosition();
    const bool isDown = !isCanceled && finger.state() != QEventPoint::Released;
    followFinger(window, finger, isDown);
    notePosition(position);
    if (!isDown) {
        Q_EMIT mouseReleased(position, Qt::LeftButton);
    } else if (finger.state() == QEventPoint::Pressed) {
        Q_EMIT pressedInWindow(window, finger.position(), Qt::LeftButton);
        Q_EMIT mousePressed(position, Qt::LeftButton);
    } else {
        noteMove(position);
    }
}

void RMouseEventSpy::followFinger(const Window &window, const QEventPoint &finger, bool isDown)
{
    const std::pair<const QPointingDevice *, int> key(finger.device(), finger.id());
    if (!m_finger.first && isDown && finger.state() == QEventPoint::Pressed)
        m_finger = key;
    if (m_finger != key)
        return;
    if (isDown) {
        point(window, finger.position());
    } else {
        m_finger = {};
        leave(m_window);
    }
}

void RMouseEventSpy::point(QWindow *window, const QPointF &position)
{
    m_window = window;
    m_positionInWindow = position;
    Q_EMIT pointed();
}

void RMouseEventSpy::leave(QWindow *window)
{
    if (m_window == window)
        point(nullptr, {});
}

void RMouseEventSpy::noteActivity()
{
    const qint64 now = m_clock();
    m_lastInput = now;
    m_idleReported = false;
    if (m_activityLimit.pass(now))
        Q_EMIT activity();
}

void RMouseEventSpy::notePosition(const QPointF &position)
{
    if (m_position == position)
        return;
    m_position = position;
    Q_EMIT positionChanged();
}

void RMouseEventSpy::noteMove(const QPointF &position)
{
    const qint64 now = m_clock();
    if (m_moveLimit.pass(now)) {
        m_restTimer.stop();
        Q_EMIT mouseMoved(position);
    } else if (!m_restTimer.isActive()) {
        m_restTimer.start(int(m_moveLimit.remaining(now)), Qt::PreciseTimer, this);
    }
}

void RMouseEventSpy::notePressed(bool &kind, bool pressed)
{
    const bool before = anyPressed();
    kind = pressed;
    if (anyPressed() != before)
        Q_EMIT anyPressedChanged();
}

} // namespace tamble::client
