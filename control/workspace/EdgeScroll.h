#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointF>

namespace tamble::client {

class WorkspaceBase;

/// Scrolls the view of a workspace along with a gesture.
class EdgeScroll : public QObject
{
public:
    explicit EdgeScroll(WorkspaceBase &workspace);

    /// The pointer of the gesture, in pixels of the workspace.
    void follow(const QPointF &pointer);
    void stop() { m_timer.stop(); }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    WorkspaceBase &m_workspace;
    QBasicTimer m_timer;
    QElapsedTimer m_sinceStep;
    QPointF m_speed;
};

} // namespace tamble::client
