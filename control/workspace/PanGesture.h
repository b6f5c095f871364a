#pragma once

#include "workspace/WorkspaceGesture.h"

#include <QtCore/QPointer>

namespace tamble::client {

class WorkspaceBase;

/// Drags the plane under the viewport.
class PanGesture : public WorkspaceGesture
{
public:
    /// `pressed` is in plane units.
    PanGesture(WorkspaceBase &workspace, const QPointF &pressed);

    void follow(const PointerAt &pointer) override;
    void finish() override {}
    void cancel() override {}

private:
    QPointer<WorkspaceBase> m_workspace;
    QPointF m_pressed;
};

/// Two fingers: what was between them stays there, and the plane becomes larger as they part.
class PinchGesture
{
public:
    /// Both in pixels of the workspace.
    PinchGesture(WorkspaceBase &workspace, const QPointF &first, const QPointF &second);

    void follow(const QPointF &first, const QPointF &second);

private:
    QPointer<WorkspaceBase> m_workspace;
    QPointF m_held; // in plane units
    qreal m_distance;
    qreal m_zoom;
};

} // namespace tamble::client
