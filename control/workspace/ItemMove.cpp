#include "workspace/ItemMove.h"

#include "workspace/Arrangement.h"
#include "workspace/MoveTelling.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

ItemMove::ItemMove(WorkspaceBase &workspace, const QList<WorkspaceItemBase *> &items, Kind kind)
    : m_workspace(&workspace)
    , m_kind(kind)
{
    for (WorkspaceItemBase *item : items)
        m_entries.push_back({item, item->planeRect()});
    countRemaining();
    if (kind == AtOnce)
        return;
    workspace.setMove(this);
    for (const Entry &entry : Entries(m_entries)) {
        if (entry.item)
            entry.item->setState(&WorkspaceItemBase::m_moving, true, &WorkspaceItemBase::movingChanged);
    }
}

ItemMove::~ItemMove()
{
    end(true);
}

void ItemMove::countRemaining()
{
    std::vector<QRectF> rects;
    for (const Entry &entry : m_entries) {
        if (entry.item)
            rects.push_back(entry.from);
    }
    m_count = rects.size();
    m_bounds = boundsOf(rects);
}

QStringList ItemMove::ids() const
{
    QStringList ids;
    for (const Entry &entry : m_entries) {
        if (entry.item)
            ids << entry.item->itemId().toString(QUuid::WithoutBraces);
    }
    return ids;
}

QPointF ItemMove::cornerAtBegin(const WorkspaceItemBase *item) const
{
    const Entry *first = nullptr;
    for (const Entry &entry : m_entries) {
        if (!entry.item)
            continue;
        if (entry.item == item)
            return entry.from.topLeft();
        if (!first)
            first = &entry;
    }
    return first ? first->from.topLeft() : QPointF();
}

QVariantMap ItemMove::positions() const
{
    QVariantMap positions;
    for (const Entry &entry : m_entries) {
        if (entry.item)
            positions.insert(entry.item->itemId().toString(QUuid::WithoutBraces), entry.item->planePosition());
    }
    return positions;
}

// What answers to a position may make items leave, or end all of it.
template <typename CornerOf>
void ItemMove::showAll(CornerOf cornerOf)
{
    const QPointer<RWorkspaceSelection> selection = m_workspace->selection();
    selection->holdGeometry();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (WorkspaceItemBase *item = m_entries[i].item)
            item->showPosition(cornerOf(i));
    }
    const bool isOfMovingItems = m_kind != AtOnce;
    if (m_workspace && isOfMovingItems)
        m_workspace->polish();
    if (selection && isOfMovingItems)
        selection->geometryChange();
    if (selection)
        selection->releaseGeometry();
}

void ItemMove::show(const QPointF &offset)
{
    showAll([this, offset](std::size_t i) { return m_entries[i].from.topLeft() + offset; });
}

void ItemMove::show(std::span<const QPointF> corners)
{
    showAll([corners](std::size_t i) { return corners[i]; });
}

void ItemMove::itemGoes(WorkspaceItemBase &item)
{
    for (Entry &entry : m_entries) {
        if (entry.item == &item)
            entry.item = nullptr;
    }
    countRemaining();
}

void ItemMove::commit(const QString &cause)
{
    const QPointer<WorkspaceBase> workspace = m_workspace;
    const Entries entries = end(false);
    QHash<QUuid, QPointF> before;
    QHash<QUuid, QPointF> after;
    for (const Entry &entry : entries) {
        if (entry.item) {
            before.insert(entry.item->itemId(), entry.from.topLeft());
            after.insert(entry.item->itemId(), entry.item->planePosition());
        }
    }
    if (before == after)
        return;
    for (const Entry &entry : entries) {
        if (entry.item && entry.item->planePosition() != entry.from.topLeft())
            Q_EMIT entry.item->moved(entry.from.topLeft(), entry.item->planePosition());
    }
    if (workspace)
        tellMoved(*workspace, before, after, cause);
}

void ItemMove::takeBack()
{
    if (m_workspace)
        show(QPointF());
    end(true);
}

ItemMove::Entries ItemMove::end(bool isTakenBack)
{
    const Entries entries = std::exchange(m_entries, {});
    m_count = 0;
    if (m_kind == AtOnce)
        return entries;
    for (const Entry &entry : entries) {
        if (!entry.item)
            continue;
        const auto waiting = std::exchange(entry.item->m_waitingPosition, {});
        entry.item->endMove();
        if (isTakenBack && waiting && entry.item)
            entry.item->setPlanePosition(*waiting);
    }
    if (m_workspace && std::exchange(m_kind, AtOnce) == Gesture)
        m_workspace->setMove(nullptr);
    return entries;
}

} // namespace tamble::client
