#pragma once

#include "workspace/WorkspaceGesture.h"

#include <QtCore/QPointer>
#include <QtCore/QRectF>

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Drags the bottom right corner of an item, which snaps to the grid and stays in the plane.
class ResizeGesture : public WorkspaceGesture
{
public:
    /// `pressed` is in plane units.
    ResizeGesture(WorkspaceBase &workspace, WorkspaceItemBase &item, const QPointF &pressed);

    void follow(const PointerAt &pointer) override;
    void finish() override;
    void cancel() override;
    bool scrollsAtEdges() const override { return true; }

private:
    QPointer<WorkspaceBase> m_workspace;
    QPointer<WorkspaceItemBase> m_item;
    QRectF m_from;
    QPointF m_pressed;
    bool m_isOver = false;
};

} // namespace tamble::client
