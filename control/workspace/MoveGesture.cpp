#include "workspace/MoveGesture.h"

#include "workspace/MoveTelling.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <cmath>
#include <utility>

namespace tamble::client {

MoveGesture::MoveGesture(WorkspaceBase &workspace, WorkspaceItemBase &leader, const QList<WorkspaceItemBase *> &items,
                         const QPointF &pressed)
    : m_workspace(&workspace)
    , m_leader(&leader)
    , m_move(workspace, items, ItemMove::Gesture)
    , m_pressed(pressed)
{}

bool MoveGesture::begin()
{
    if (!std::exchange(m_hasBegun, true))
        Q_EMIT m_workspace->moveStarted(m_move.ids());
    return m_workspace && !m_isOver;
}

void MoveGesture::follow(const PointerAt &pointer)
{
    if (!m_workspace || m_isOver || m_move.isEmpty() || !begin())
        return;
    QPointF offset = m_workspace->mapToPlane(pointer.pixel) - m_pressed;
    SnapRules rules = m_workspace->snapRules(pointer.modifiers & Qt::AltModifier);
    if (pointer.modifiers & Qt::ShiftModifier) {
        const bool isAcross = std::abs(offset.x()) >= std::abs(offset.y());
        offset = isAcross ? QPointF(offset.x(), 0.0) : QPointF(0.0, offset.y());
        rules.axes = isAcross ? Qt::Horizontal : Qt::Vertical;
    }
    const SnappedMove move = snappedMove(m_move.boundsAtBegin(), m_move.cornerAtBegin(m_leader), offset,
                                         rules.distance > 0.0 ? linesInView() : SnapLines(), rules);
    m_workspace->showGuides(move.guides);
    if (!m_workspace || m_isOver || move.offset == m_offset)
        return;
    m_offset = move.offset;
    m_move.show(m_offset);
    if (m_workspace && !m_isOver)
        tellMoving(*m_workspace, m_move);
}

// As long as the view stays, those in it are taken to stay as well.
const SnapLines &MoveGesture::linesInView()
{
    if (!std::exchange(m_hasLines, true) || m_viewOfLines != m_workspace->view()) {
        m_viewOfLines = m_workspace->view();
        m_lines = SnapLines(m_workspace->placed().restingRectsIn(m_viewOfLines.seen()));
    }
    return m_lines;
}

void MoveGesture::finish()
{
    if (std::exchange(m_isOver, true) || !m_workspace)
        return;
    m_workspace->showGuides({});
    m_move.commit(QStringLiteral("drag"));
}

void MoveGesture::cancel()
{
    if (std::exchange(m_isOver, true) || !m_workspace)
        return;
    m_workspace->showGuides({});
    m_move.takeBack();
    if (m_workspace && m_hasBegun)
        Q_EMIT m_workspace->moveCanceled();
}

} // namespace tamble::client
