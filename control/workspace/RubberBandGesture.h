#pragma once

#include "workspace/WorkspaceGesture.h"

#include <QtCore/QList>
#include <QtCore/QPointer>

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Draws a rectangle, and selects the items that it touches (with Alt: that it holds in full) while it is drawn. They
/// replace those that were selected; with Shift they are added, with Ctrl turned over.
class RubberBandGesture : public WorkspaceGesture
{
public:
    /// `pressed` is in plane units.
    RubberBandGesture(WorkspaceBase &workspace, const QPointF &pressed);

    void follow(const PointerAt &pointer) override;
    void finish() override;
    void cancel() override;
    bool scrollsAtEdges() const override { return true; }

private:
    QList<WorkspaceItemBase *> earlier() const;

    QPointer<WorkspaceBase> m_workspace;
    QList<QPointer<WorkspaceItemBase>> m_earlier; // selected before
    QPointer<WorkspaceItemBase> m_earlierCurrent;
    QPointF m_pressed;
    bool m_isOver = false;
};

} // namespace tamble::client
