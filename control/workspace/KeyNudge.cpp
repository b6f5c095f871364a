#include "workspace/KeyNudge.h"

#include "workspace/MoveTelling.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceBase.h"

#include <utility>

namespace tamble::client {

namespace {

constexpr int pauseMs = 400;

} // namespace

KeyNudge::KeyNudge(WorkspaceBase &workspace)
    : m_workspace(workspace)
{}

void KeyNudge::step(const QPointF &way)
{
    const QPointer<KeyNudge> self(this);
    if (!m_move) {
        const auto items = m_workspace.selectedToMove();
        if (items.isEmpty())
            return;
        m_offset = QPointF();
        m_move = std::make_shared<ItemMove>(m_workspace, items, ItemMove::Gesture);
        Q_EMIT m_workspace.moveStarted(m_move->ids());
        if (!self || !m_move)
            return;
    }
    const std::shared_ptr<ItemMove> move = m_move;
    m_pause.start(pauseMs, this);
    const QRectF set = move->boundsAtBegin();
    const QPointF wanted = m_offset + way;
    const QPointF offset = wanted + offsetInto(m_workspace.planeRect(), set.translated(wanted));
    if (std::exchange(m_offset, offset) == offset || move->isEmpty())
        return;
    move->show(offset);
    if (self && m_move == move)
        tellMoving(m_workspace, *move);
}

void KeyNudge::finish()
{
    m_pause.stop();
    if (const auto move = std::exchange(m_move, nullptr))
        move->commit(QStringLiteral("keyboard"));
}

void KeyNudge::cancel()
{
    m_pause.stop();
    const auto move = std::exchange(m_move, nullptr);
    if (!move)
        return;
    const QPointer<WorkspaceBase> workspace(&m_workspace);
    move->takeBack();
    if (workspace)
        Q_EMIT workspace->moveCanceled();
}

void KeyNudge::timerEvent(QTimerEvent *)
{
    finish();
}

} // namespace tamble::client
