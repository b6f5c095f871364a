#include "workspace/WorkspaceItems.h"

#include "base/ControlLog.h"
#include "workspace/ReadingOrder.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace tamble::client {

WorkspaceItems::WorkspaceItems(WorkspaceBase &workspace)
    : m_workspace(workspace)
{}

WorkspaceItems::~WorkspaceItems()
{
    for (WorkspaceItemBase *item : all())
        item->m_workspace = nullptr;
}

bool WorkspaceItems::add(WorkspaceItemBase &item)
{
    if (!item.m_itemId.isNull()) {
        if (!isFree(item.m_itemId))
            return false;
        knowId(item);
    }
    if (m_freeSlots.empty()) {
        item.m_slot = RectIndex::Key(m_slots.size());
        m_slots.push_back(&item);
    } else {
        item.m_slot = m_freeSlots.back();
        m_freeSlots.pop_back();
        m_slots[item.m_slot] = &item;
    }
    m_added.push_back(item.m_slot);
    return true;
}

void WorkspaceItems::knowId(WorkspaceItemBase &item)
{
    m_byId.insert(item.m_itemId, &item);
}

bool WorkspaceItems::isFree(const QUuid &id) const
{
    if (!m_byId.contains(id))
        return true;
    qCWarning(controlLog).noquote() << "WorkspaceBase::registerItem() duplicate item id"
                                    << id.toString(QUuid::WithoutBraces);
    return false;
}

void WorkspaceItems::remove(WorkspaceItemBase &item)
{
    m_byId.remove(item.m_itemId);
    m_index.remove(item.m_slot);
    item.m_isPlaced = false;
    m_slots[item.m_slot] = nullptr;
    m_freeSlots.push_back(item.m_slot);
    std::erase(m_inView, item.m_slot);
}

bool WorkspaceItems::changeId(WorkspaceItemBase &item, const QUuid &id)
{
    if (!isFree(id))
        return false;
    m_byId.remove(item.m_itemId);
    m_byId.insert(id, &item);
    return true;
}

WorkspaceItems::Items WorkspaceItems::all() const
{
    Items items;
    for (WorkspaceItemBase *item : m_slots) {
        if (item)
            items.append(item);
    }
    return items;
}

void WorkspaceItems::place(WorkspaceItemBase &item)
{
    if (!std::exchange(item.m_isPlaced, true))
        m_placed.push_back(item.m_slot);
}

// Items are given their places one property after the other, and 500 at once while they are dragged.
const RectIndex &WorkspaceItems::index() const
{
    for (const RectIndex::Key key : m_placed) {
        WorkspaceItemBase *item = m_slots[key];
        if (!item || !std::exchange(item->m_isPlaced, false))
            continue;
        if (item->isShownByItself())
            m_index.put(key, item->planeRect());
        else
            m_index.remove(key);
    }
    m_placed.clear();
    return m_index;
}

void WorkspaceItems::placeAll()
{
    for (WorkspaceItemBase *item : all())
        place(*item);
}

void WorkspaceItems::setUnit(qreal unit)
{
    QList<QPointer<WorkspaceItemBase>> items;
    for (WorkspaceItemBase *item : all())
        items.append(item);
    for (const auto &item : std::as_const(items)) {
        if (item && item->workspace() == &m_workspace)
            item->setUnit(unit);
    }
}

WorkspaceItemBase *WorkspaceItems::at(const QPointF &point) const
{
    WorkspaceItemBase *front = nullptr;
    for (const RectIndex::Key key : index().at(point)) {
        if (!front || isBehind(front, m_slots[key]))
            front = m_slots[key];
    }
    return front;
}

WorkspaceItems::Items WorkspaceItems::itemsOf(const RectIndex::Keys &keys) const
{
    Items items;
    items.reserve(qsizetype(keys.size()));
    for (const RectIndex::Key key : keys)
        items.append(m_slots[key]);
    return items;
}

WorkspaceItems::Items WorkspaceItems::toRead() const
{
    // By slots, since the hash has them in any order and those at one place need one that stays.
    Items items;
    std::vector<QPointF> corners;
    for (WorkspaceItemBase *item : m_slots) {
        if (item && item->isShownByItself()) {
            items.append(item);
            corners.push_back(item->planePosition());
        }
    }
    Items ordered;
    for (const std::size_t i : readingOrder(corners))
        ordered.append(items[qsizetype(i)]);
    return ordered;
}

WorkspaceItems::Items WorkspaceItems::stacked(Items items) const
{
    std::sort(items.begin(), items.end(), [this](auto *left, auto *right) { return isBehind(left, right); });
    return items;
}

bool WorkspaceItems::isBehind(WorkspaceItemBase *item, WorkspaceItemBase *other) const
{
    if (item->z() != other->z())
        return item->z() < other->z();
    const int rank = rankOf(*item);
    const int otherRank = rankOf(*other);
    return rank != otherRank ? rank < otherRank : item->m_slot < other->m_slot;
}

// Nobody tells when items are stacked anew, but whether a known rank still holds is seen at once.
int WorkspaceItems::rankOf(WorkspaceItemBase &item) const
{
    const QList<QQuickItem *> siblings = m_workspace.plane()->childItems();
    if (item.m_rank < 0 || item.m_rank >= siblings.size() || siblings[item.m_rank] != &item) {
        for (int i = 0; i < siblings.size(); ++i) {
            if (auto *sibling = qobject_cast<WorkspaceItemBase *>(siblings[i]))
                sibling->m_rank = i;
        }
        if (item.parentItem() != m_workspace.plane()) {
            QQuickItem *lower = item.parentItem();
            while (lower && lower->parentItem() != m_workspace.plane())
                lower = lower->parentItem();
            return int(siblings.indexOf(lower));
        }
    }
    return item.m_rank;
}

WorkspaceItems::Items WorkspaceItems::selectableIn(const QRectF &area, bool contained) const
{
    auto items = stacked(contained ? containedIn(area) : touching(area));
    items.removeIf([](const WorkspaceItemBase *item) { return !item->isSelectable(); });
    return items;
}

std::vector<QRectF> WorkspaceItems::restingRectsIn(const QRectF &area) const
{
    std::vector<QRectF> rects;
    for (const WorkspaceItemBase *item : touching(area)) {
        if (!item->moving())
            rects.push_back(item->planeRect());
    }
    return rects;
}

QHash<QUuid, QPointF> WorkspaceItems::positions() const
{
    QHash<QUuid, QPointF> positions;
    for (const WorkspaceItemBase *item : all())
        positions.insert(item->itemId(), item->planePosition());
    return positions;
}

QHash<QUuid, QRectF> WorkspaceItems::geometries() const
{
    QHash<QUuid, QRectF> geometries;
    for (const WorkspaceItemBase *item : all())
        geometries.insert(item->itemId(), item->planeRect());
    return geometries;
}

void WorkspaceItems::showIn(const QRectF &region, bool isDetailed)
{
    RectIndex::Keys seen = index().touching(region);
    std::sort(seen.begin(), seen.end());
    // What items make of it may destroy others.
    QList<QPointer<WorkspaceItemBase>> leaving;
    QList<QPointer<WorkspaceItemBase>> coming;
    for (const RectIndex::Keys *keys : {&m_inView, &m_added}) {
        for (const RectIndex::Key key : *keys) {
            if (m_slots[key] && !std::binary_search(seen.begin(), seen.end(), key))
                leaving.append(m_slots[key]);
        }
    }
    for (const RectIndex::Key key : seen) {
        if (!m_slots[key]->inView() || m_slots[key]->detailed() != isDetailed)
            coming.append(m_slots[key]);
    }
    m_added.clear();
    m_inView = std::move(seen);

    for (const auto &item : std::as_const(leaving)) {
        if (item && item->workspace() == &m_workspace)
            item->setInView(false, isDetailed);
    }
    for (const auto &item : std::as_const(coming)) {
        if (item && item->workspace() == &m_workspace)
            item->setInView(true, isDetailed);
    }
}

} // namespace tamble::client
