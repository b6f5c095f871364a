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

    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        noteActivity();
        watchMouse(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        noteActivity();
        watchTouch(static_cast<QTouchEvent *>(event));
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
    return false;
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

void RMouseEventSpy::watchMouse(QMouseEvent *event)
{
    Q_EMIT mouseEvent(event);
    // The finger behind such an event has been reported by its touch event.
    if (event->source() == Qt::MouseEventSynthesizedByQt)
        return;

    const QPointF position = event->globalPosition();
    notePosition(position);
    notePressed(m_mousePressed, event->buttons() != Qt::NoButton);
    if (event->type() == QEvent::MouseMove)
        noteMove(position);
    else if (event->type() == QEvent::MouseButtonRelease)
        Q_EMIT mouseReleased(position, event->button());
    else if (event->type() == QEvent::MouseButtonPress) // a double click comes in addition to its second press
        Q_EMIT mousePressed(position, event->button());
}

void RMouseEventSpy::watchTouch(QTouchEvent *event)
{
    const auto &points = event->points();
    const auto isDown = [](const QEventPoint &point) { return point.state() != QEventPoint::Released; };
    const bool canceled = event->type() == QEvent::TouchCancel;
    notePressed(m_touchPressed, !canceled && std::any_of(points.begin(), points.end(), isDown));

    for (const QEventPoint &point : points) {
        const QPointF position = point.globalPosition();
        if (point.state() == QEventPoint::Stationary && !canceled)
            continue;
        notePosition(position);
        if (canceled || point.state() == QEventPoint::Released)
            Q_EMIT mouseReleased(position, Qt::LeftButton);
        else if (point.state() == QEventPoint::Pressed)
            Q_EMIT mousePressed(position, Qt::LeftButton);
        else
            noteMove(position);
    }
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
