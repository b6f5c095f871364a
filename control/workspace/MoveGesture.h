#pragma once

#include "workspace/ItemMove.h"
#include "workspace/PlaneView.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceGesture.h"

namespace tamble::client {

/// Drags items by one common offset. They snap to those in view, and to the grid with the one that was pressed.
class MoveGesture : public WorkspaceGesture
{
public:
    /// `pressed` is in plane units.
    MoveGesture(WorkspaceBase &workspace, WorkspaceItemBase &leader, const QList<WorkspaceItemBase *> &items,
                const QPointF &pressed);

    void follow(const PointerAt &pointer) override;
    void finish() override;
    void cancel() override;
    bool scrollsAtEdges() const override { return true; }

private:
    bool begin();
    const SnapLines &linesInView();

    QPointer<WorkspaceBase> m_workspace;
    QPointer<WorkspaceItemBase> m_leader;
    ItemMove m_move;
    QPointF m_pressed;
    QPointF m_offset;
    SnapLines m_lines;
    PlaneView m_viewOfLines; // when they were collected
    bool m_hasBegun = false;
    bool m_hasLines = false;
    bool m_isOver = false;
};

} // namespace tamble::client
