#include "workspace/MoveTelling.h"

#include "workspace/HeardSignal.h"
#include "workspace/ItemMove.h"
#include "workspace/WorkspaceBase.h"

#include <QtCore/QPointer>

namespace tamble::client {

namespace {

template <typename Value>
QVariantMap textMap(const QHash<QUuid, Value> &values)
{
    QVariantMap map;
    for (auto value = values.begin(); value != values.end(); ++value)
        map.insert(value.key().toString(QUuid::WithoutBraces), value.value());
    return map;
}

} // namespace

void tellMoving(WorkspaceBase &workspace, const ItemMove &move)
{
    if (isHeard<&WorkspaceBase::itemsMoving>(workspace))
        Q_EMIT workspace.itemsMoving(move.positions());
}

void tellMoved(WorkspaceBase &workspace, const QHash<QUuid, QPointF> &before, const QHash<QUuid, QPointF> &after,
               const QString &cause)
{
    const QPointer<WorkspaceBase> guard(&workspace);
    Q_EMIT workspace.positionsCommitted(before, after);
    if (guard)
        Q_EMIT workspace.itemsMoved(textMap(before), textMap(after), cause);
}

void tellResized(WorkspaceBase &workspace, const QHash<QUuid, QRectF> &before, const QHash<QUuid, QRectF> &after)
{
    const QPointer<WorkspaceBase> guard(&workspace);
    Q_EMIT workspace.geometriesCommitted(before, after);
    if (guard)
        Q_EMIT workspace.itemsResized(textMap(before), textMap(after));
}

} // namespace tamble::client
