#pragma once

#include "workspace/RectIndex.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QUuid>

#include <vector>

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// The items of a workspace: where they are, which are in view, and which of them is in front.
class WorkspaceItems
{
public:
    using Items = QList<WorkspaceItemBase *>;

    explicit WorkspaceItems(WorkspaceBase &workspace);
    ~WorkspaceItems();
    WorkspaceItems(const WorkspaceItems &) = delete;
    WorkspaceItems &operator=(const WorkspaceItems &) = delete;

    /// False for one whose id another item has: it is not added.
    bool add(WorkspaceItemBase &item);
    /// An item of the workspace has got its first id.
    void knowId(WorkspaceItemBase &item);
    void remove(WorkspaceItemBase &item);
    /// Gives an item of the workspace another id; false when another item has it.
    bool changeId(WorkspaceItemBase &item, const QUuid &id);
    /// An item has another place or size, or is shown or hidden by its own `visible`.
    void place(WorkspaceItemBase &item);
    void placeAll();
    void setUnit(qreal unit);

    WorkspaceItemBase *byId(const QUuid &id) const { return m_byId.value(id); }
    /// The one in front at a point; null for none.
    WorkspaceItemBase *at(const QPointF &point) const;
    Items touching(const QRectF &area) const { return itemsOf(index().touching(area)); }
    Items containedIn(const QRectF &area) const { return itemsOf(index().containedIn(area)); }
    /// All, in no order.
    Items all() const;
    /// All that are not hidden, in reading order.
    Items toRead() const;
    /// From the back to the front.
    Items stacked(Items items) const;

    /// Those that the user can select and that an area touches or, `contained`, holds in full; from the back to the
    /// front.
    Items selectableIn(const QRectF &area, bool contained) const;
    /// Those in an area that are not being moved.
    std::vector<QRectF> restingRectsIn(const QRectF &area) const;
    QHash<QUuid, QPointF> positions() const;
    QHash<QUuid, QRectF> geometries() const;

    /// Tells items whether they are in view, and how much of them is shown there.
    void showIn(const QRectF &region, bool isDetailed);

private:
    bool isFree(const QUuid &id) const;
    const RectIndex &index() const;
    Items itemsOf(const RectIndex::Keys &keys) const;
    bool isBehind(WorkspaceItemBase *item, WorkspaceItemBase *other) const;
    int rankOf(WorkspaceItemBase &item) const;

    WorkspaceBase &m_workspace;
    mutable RectIndex m_index;
    mutable RectIndex::Keys m_placed;         // those that the index has to be told of when it is asked next
    std::vector<WorkspaceItemBase *> m_slots; // the index's keys; null for a free one
    std::vector<RectIndex::Key> m_freeSlots;
    QHash<QUuid, WorkspaceItemBase *> m_byId; // those that have an id by now
    RectIndex::Keys m_inView;
    RectIndex::Keys m_added; // since the view was last shown
};

} // namespace tamble::client
