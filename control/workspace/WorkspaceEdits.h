#pragma once

#include <QtCore/QVariantMap>
#include <QtCore/Qt>

namespace tamble::client {

class WorkspaceBase;

// What pages and tool bars do to the items of a workspace.

/// Puts items to places, from id text to point, or gives them rectangles; within the plane, as one set.
void putItems(WorkspaceBase &workspace, const QVariantMap &positions);
void putRects(WorkspaceBase &workspace, const QVariantMap &geometries);
/// Moves the selected items to an edge or the centre of the rectangle around them.
void alignItems(WorkspaceBase &workspace, Qt::Alignment edge);
/// Gives three or more selected items equal gaps.
void distributeItems(WorkspaceBase &workspace, Qt::Orientation orientation);

} // namespace tamble::client
