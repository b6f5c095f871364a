#pragma once

#include "base/ControlExport.h"
#include "pointer/RateLimit.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtGui/QWindow>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

QT_FORWARD_DECLARE_CLASS(QEventPoint)
QT_FORWARD_DECLARE_CLASS(QMouseEvent)
QT_FORWARD_DECLARE_CLASS(QPointingDevice)
QT_FORWARD_DECLARE_CLASS(QTouchEvent)

namespace tamble::client {

/// Watches all mouse, touch and key input of the application and eats none of it.
///
/// Serves automatic locking and closing things on presses outside. Positions are global, in device-independent pixels.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseEventSpy : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseEventSpy)
    QML_SINGLETON
    /// Last place of the pointer, on the desktop.
    Q_PROPERTY(QPointF position READ position NOTIFY positionChanged)
    Q_PROPERTY(bool anyPressed READ anyPressed NOTIFY anyPressedChanged)
    Q_PROPERTY(int idleTime READ idleTime NOTIFY idleTimeChanged)
    Q_PROPERTY(int idleLimit READ idleLimit WRITE setIdleLimit NOTIFY idleLimitChanged)

public:
    /// Milliseconds of a steady clock.
    using Clock = std::function<qint64()>;

    /// A spy that watches nothing until it is installed; `clock` is for tests and replay, default the system's.
    explicit RMouseEventSpy(Clock clock = {}, QObject *parent = nullptr);

    /// The spy of this process, made and installed on first use. It has no parent and stays until the process ends.
    static RMouseEventSpy *instance();

    /// Puts the spy in front of the application's event filters, so that it is installed once and sees events first.
    /// Without an application nothing happens.
    void install();

    QPointF position() const { return m_position; }
    /// The window that the pointer is in, and where, in its pixels; null over none. The first finger of several is the
    /// pointer, and no pointer is left when it goes up.
    QWindow *window() const { return m_window; }
    QPointF positionInWindow() const { return m_positionInWindow; }
    /// Whether any mouse button or touch point is down.
    bool anyPressed() const { return m_mousePressed || m_touchPressed; }
    /// Time since the last input in ms. Its notification comes each second while somebody listens.
    int idleTime() const;
    /// Idle time in ms after which `idle` is emitted, once per idle period; 0 (default) and less: never.
    int idleLimit() const { return m_idleLimit; }
    void setIdleLimit(int limitMs);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// What the one-second timer does: reports the idle time and, when it is passed, the limit.
    void checkIdle();

Q_SIGNALS:
    void positionChanged();
    void anyPressedChanged();
    void idleTimeChanged();
    void idleLimitChanged();
    /// Every mouse event of every window, for native use.
    void mouseEvent(QMouseEvent *event);
    /// `window` or `positionInWindow` may be others, for native use; before what else the event leads to.
    void pointed();
    /// As `mousePressed`, with the place in the window, for native use.
    void pressedInWindow(QWindow *window, const QPointF &position, int button);
    /// A mouse button (`Qt::MouseButton`) went down at a place on the desktop; a touch counts as the left one.
    void mousePressed(const QPointF &position, int button);
    /// A mouse button went up at a place on the desktop; a touch counts as the left one.
    void mouseReleased(const QPointF &position, int button);
    /// At most every 50 ms; the place where the pointer came to rest is always reported.
    void mouseMoved(const QPointF &position);
    /// Any input, keys too; at most every 250 ms.
    void activity();
    /// Nothing was done for this many ms, which `idleLimit` allows.
    void idle(int ms);

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void timerEvent(QTimerEvent *event) override;

private:
    using Window = QPointer<QWindow>; ///< one that any listener may delete

    void updateIdleTimer();
    void watch(const Window &window, QEvent *event);
    void watchMouse(const Window &window, QMouseEvent *event);
    void watchTouch(const Window &window, QTouchEvent *event);
    void watchFinger(const Window &window, const QEventPoint &finger, bool isCanceled);
    void followFinger(const Window &window, const QEventPoint &finger, bool isDown);
    void point(QWindow *window, const QPointF &position);
    void leave(QWindow *window);
    void noteActivity();
    void notePosition(const QPointF &position);
    void noteMove(const QPointF &position);
    void notePressed(bool &kind, bool pressed);

    Clock m_clock;
    QPointF m_position;
    Window m_window;
    QPointF m_positionInWindow;
    std::pair<const QPointingDevice *, int> m_finger; ///< the device and number of the one that is the pointer
    bool m_mousePressed = false;
    bool m_touchPressed = false;
    int m_idleLimit = 0;
    bool m_idleReported = false;
    qint64 m_lastInput = 0;
    RateLimit m_moveLimit{50};
    RateLimit m_activityLimit{250};
    QBasicTimer m_restTimer; ///< Runs for less than 50 ms after a move that the limit held back.
    QBasicTimer m_idleTimer; ///< Runs while `idleLimit` is set or somebody listens to the idle time.
};

} // namespace tamble::client
