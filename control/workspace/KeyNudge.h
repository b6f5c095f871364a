#pragma once

#include "workspace/ItemMove.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

#include <memory>

namespace tamble::client {

/// Moves the selected items step by step, as the arrow keys do. Steps that follow each other within 400 ms are one
/// gesture.
class KeyNudge : public QObject
{
public:
    explicit KeyNudge(WorkspaceBase &workspace);

    bool isUnderWay() const { return m_move != nullptr; }
    void step(const QPointF &way);
    void finish();
    void cancel();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    WorkspaceBase &m_workspace;
    std::shared_ptr<ItemMove> m_move;
    QPointF m_offset;
    QBasicTimer m_pause;
};

} // namespace tamble::client
