#pragma once

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QUuid>

namespace tamble::client {

class ItemMove;
class WorkspaceBase;

// What a workspace tells of moved and resized items.

/// A step of a move.
void tellMoving(WorkspaceBase &workspace, const ItemMove &move);
/// A gesture that moved items is over, or changed their sizes (`tellResized`).
void tellMoved(WorkspaceBase &workspace, const QHash<QUuid, QPointF> &before, const QHash<QUuid, QPointF> &after,
               const QString &cause);
void tellResized(WorkspaceBase &workspace, const QHash<QUuid, QRectF> &before, const QHash<QUuid, QRectF> &after);

} // namespace tamble::client
