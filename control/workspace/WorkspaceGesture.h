#pragma once

#include <QtCore/QPointF>
#include <QtCore/Qt>

namespace tamble::client {

/// Where the pointer is during a gesture, in pixels of the workspace.
struct PointerAt
{
    QPointF pixel;
    Qt::KeyboardModifiers modifiers;
};

/// What the user does with a workspace from a press on. It outlives each of its calls, even if what answers to it takes
/// it back or destroys the workspace.
class WorkspaceGesture
{
public:
    virtual ~WorkspaceGesture() = default;

    /// The pointer has moved, or the view under it.
    virtual void follow(const PointerAt &pointer) = 0;
    virtual void finish() = 0;
    virtual void cancel() = 0;
    /// Whether the view scrolls along where the pointer is at an edge of the viewport.
    virtual bool scrollsAtEdges() const { return false; }
};

} // namespace tamble::client
