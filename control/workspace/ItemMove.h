#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUuid>
#include <QtCore/QVariantMap>

#include <span>
#include <vector>

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Items on their way from where they were to where they are brought.
class ItemMove
{
public:
    enum Kind {
        AtOnce,
        Gesture, ///< They are `moving`, and what a page says about their positions meanwhile waits.
    };

    ItemMove(WorkspaceBase &workspace, const QList<WorkspaceItemBase *> &items, Kind kind);
    ~ItemMove();
    ItemMove(const ItemMove &) = delete;
    ItemMove &operator=(const ItemMove &) = delete;

    bool isEmpty() const { return m_count == 0; }
    QStringList ids() const;
    /// The rectangle around them when they began.
    QRectF boundsAtBegin() const { return m_bounds; }
    /// Where an item was; where the first one was, when this one has left.
    QPointF cornerAtBegin(const WorkspaceItemBase *item) const;
    /// From id text to where they are.
    QVariantMap positions() const;

    void show(const QPointF &offset);
    void show(std::span<const QPointF> corners);
    /// An item is destroyed or taken elsewhere: it leaves the move.
    void itemGoes(WorkspaceItemBase &item);
    /// They stay where they are; tells the workspace and the items, if any has moved.
    void commit(const QString &cause);
    /// They go back, or to where the page has put them meanwhile.
    void takeBack();

private:
    struct Entry
    {
        QPointer<WorkspaceItemBase> item;
        QRectF from;
    };

    using Entries = std::vector<Entry>;

    void countRemaining();
    template <typename CornerOf>
    void showAll(CornerOf cornerOf);
    Entries end(bool isTakenBack);

    QPointer<WorkspaceBase> m_workspace;
    Entries m_entries; // those of items that have left are empty
    std::size_t m_count = 0;
    QRectF m_bounds;
    Kind m_kind;
};

} // namespace tamble::client
