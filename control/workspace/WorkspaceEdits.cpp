#include "workspace/WorkspaceEdits.h"

#include "workspace/Arrangement.h"
#include "workspace/ItemMove.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtCore/QPointer>

#include <utility>

namespace tamble::client {

namespace {

std::vector<QRectF> rectsOf(const QList<WorkspaceItemBase *> &items)
{
    std::vector<QRectF> rects;
    for (const WorkspaceItemBase *item : items)
        rects.push_back(item->planeRect());
    return rects;
}

std::vector<QRectF> movedTo(std::vector<QRectF> rects, const std::vector<QPointF> &corners)
{
    for (std::size_t i = 0; i < rects.size(); ++i)
        rects[i].moveTopLeft(corners[i]);
    return rects;
}

bool isUsable(const QRectF &rect)
{
    return qIsFinite(rect.left()) && qIsFinite(rect.top()) && qIsFinite(rect.right()) && qIsFinite(rect.bottom());
}

WorkspaceItemBase *itemOf(const WorkspaceBase &workspace, const QString &id)
{
    return qobject_cast<WorkspaceItemBase *>(workspace.itemById(id));
}

void arrange(WorkspaceBase &workspace, const QList<WorkspaceItemBase *> &items, const std::vector<QPointF> &corners,
             const QString &cause)
{
    ItemMove move(workspace, items, ItemMove::AtOnce);
    move.show(keptInside(workspace.planeRect(), movedTo(rectsOf(items), corners)));
    move.commit(cause);
}

void placeItems(WorkspaceBase &workspace, const QVariantMap &geometries, bool resizes)
{
    const QPointer<WorkspaceBase> self(&workspace);
    workspace.finishNudge();
    if (!self)
        return;
    QList<WorkspaceItemBase *> items;
    std::vector<QRectF> rects;
    for (auto entry = geometries.begin(); entry != geometries.end(); ++entry) {
        WorkspaceItemBase *item = itemOf(workspace, entry.key());
        const QRectF rect = entry.value().toRectF();
        if (item && isUsable(rect)) {
            items.append(item);
            rects.push_back(rect);
        }
    }
    const auto corners = keptInside(workspace.planeRect(), rects);
    ItemMove move(workspace, items, ItemMove::AtOnce);
    if (resizes) {
        QList<QPointer<WorkspaceItemBase>> held;
        for (WorkspaceItemBase *item : std::as_const(items))
            held.append(item);
        for (qsizetype i = 0; i < held.size(); ++i) {
            if (held[i])
                held[i]->setPlaneSize(rects[std::size_t(i)].size());
        }
    }
    if (self)
        move.show(corners);
}

} // namespace

void putItems(WorkspaceBase &workspace, const QVariantMap &positions)
{
    QVariantMap geometries;
    for (auto entry = positions.begin(); entry != positions.end(); ++entry) {
        if (const WorkspaceItemBase *item = itemOf(workspace, entry.key()))
            geometries.insert(entry.key(), QRectF(entry.value().toPointF(), item->planeSize()));
    }
    placeItems(workspace, geometries, false);
}

void putRects(WorkspaceBase &workspace, const QVariantMap &geometries)
{
    placeItems(workspace, geometries, true);
}

void alignItems(WorkspaceBase &workspace, Qt::Alignment edge)
{
    if (!workspace.endGestures())
        return;
    const auto items = workspace.selectedToMove();
    if (!items.isEmpty())
        arrange(workspace, items, aligned(rectsOf(items), boundsOf(rectsOf(workspace.selectedHere())), edge),
                QStringLiteral("align"));
}

void distributeItems(WorkspaceBase &workspace, Qt::Orientation orientation)
{
    if (!workspace.endGestures())
        return;
    const auto items = workspace.selectedToMove();
    if (items.size() >= 3)
        arrange(workspace, items, distributed(rectsOf(items), orientation), QStringLiteral("distribute"));
}

} // namespace tamble::client
