#include "workspace/Arrangement.h"
#include "workspace/ItemMove.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

// What pages and tool bars do to the items of a workspace.

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

} // namespace

void WorkspaceBase::zoomToFit()
{
    const auto items = m_items->toRead();
    if (items.isEmpty())
        fit(m_view.plane(), m_view.maximumZoom());
    else
        fit(items);
}

void WorkspaceBase::zoomToSelection()
{
    const auto items = selectedHere();
    if (!items.isEmpty())
        fit(items);
}

void WorkspaceBase::fit(const QList<WorkspaceItemBase *> &items)
{
    fit(boundsOf(rectsOf(items)), items.size() == 1 ? 1.0 : m_view.maximumZoom());
}

QPointF WorkspaceBase::snapped(const QPointF &point) const
{
    const double grid = m_snapToGrid ? m_gridSize : 0.0;
    return QPointF(snappedToGrid(point.x(), grid), snappedToGrid(point.y(), grid));
}

void WorkspaceBase::moveItems(const QVariantMap &positions)
{
    QVariantMap geometries;
    for (auto entry = positions.begin(); entry != positions.end(); ++entry) {
        if (const WorkspaceItemBase *item = m_items->byId(QUuid(entry.key())))
            geometries.insert(entry.key(), QRectF(entry.value().toPointF(), item->planeSize()));
    }
    placeItems(geometries, false);
}

void WorkspaceBase::resizeItems(const QVariantMap &geometries)
{
    placeItems(geometries, true);
}

void WorkspaceBase::placeItems(const QVariantMap &geometries, bool resizes)
{
    const QPointer<WorkspaceBase> self(this);
    m_input->nudge().finish();
    if (!self)
        return;
    QList<WorkspaceItemBase *> items;
    std::vector<QRectF> rects;
    for (auto entry = geometries.begin(); entry != geometries.end(); ++entry) {
        WorkspaceItemBase *item = m_items->byId(QUuid(entry.key()));
        const QRectF rect = entry.value().toRectF();
        if (item && isUsable(rect)) {
            items.append(item);
            rects.push_back(rect);
        }
    }
    const auto corners = keptInside(m_view.plane(), rects);
    ItemMove move(*this, items, ItemMove::AtOnce);
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

void WorkspaceBase::nudge(qreal dx, qreal dy)
{
    if (qIsFinite(dx) && qIsFinite(dy) && (!m_move || m_input->nudge().isUnderWay()))
        m_input->nudge().step(QPointF(dx, dy));
}

// What the keys have moved so far counts; what the pointer still holds does not.
void WorkspaceBase::endGestures()
{
    const QPointer<WorkspaceBase> self(this);
    m_input->nudge().finish();
    if (self)
        cancelGesture();
}

void WorkspaceBase::arrange(const QList<WorkspaceItemBase *> &items, const std::vector<QPointF> &corners,
                            const QString &cause)
{
    ItemMove move(*this, items, ItemMove::AtOnce);
    move.show(keptInside(m_view.plane(), movedTo(rectsOf(items), corners)));
    move.commit(cause);
}

void WorkspaceBase::align(int edge)
{
    const QPointer<WorkspaceBase> self(this);
    endGestures();
    if (!self)
        return;
    const auto items = selectedToMove();
    if (!items.isEmpty())
        arrange(items, aligned(rectsOf(items), boundsOf(rectsOf(selectedHere())), Qt::Alignment(edge)),
                QStringLiteral("align"));
}

void WorkspaceBase::distribute(int orientation)
{
    const QPointer<WorkspaceBase> self(this);
    endGestures();
    if (!self)
        return;
    const auto items = selectedToMove();
    if (items.size() >= 3)
        arrange(items, distributed(rectsOf(items), Qt::Orientation(orientation)), QStringLiteral("distribute"));
}

} // namespace tamble::client
