#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QQuickWindow)
QT_FORWARD_DECLARE_CLASS(QWindow)

namespace tamble::client {

class RMouseDetection;
class RMouseEventSpy;

/// Tells the detections of the application where the pointer is and what is pressed. They share one connection to the
/// spy, which exists while there are any; where they are is looked up when the pointer or a frame of its window moves.
class DetectionWatch : public QObject
{
    Q_OBJECT

public:
    static DetectionWatch &instance();

    /// Is told about the pointer from the next turn of the event loop on, when it has found its place.
    void add(RMouseDetection &detection);
    void remove(RMouseDetection &detection);

private:
    explicit DetectionWatch(RMouseEventSpy &spy);

    void listen();
    void followFrames();
    void updateLater();
    void update();
    void press(QWindow *window, const QPointF &position, int button);
    void release(Qt::MouseButtons buttons);

    RMouseEventSpy &m_spy;
    QList<RMouseDetection *> m_detections;
    QMetaObject::Connection m_frames; ///< those of `m_window`
    QPointer<QWindow> m_window;       ///< whose frames are followed
    bool m_updatesLater = false;
    unsigned m_updates = 0;
};

} // namespace tamble::client
