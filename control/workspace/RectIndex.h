#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>

#include <cstdint>
#include <memory>
#include <vector>

namespace tamble::client {

/// Finds the rectangles of a plane that are somewhere, without looking at all of them.
///
/// Rectangles that are moved all the time would be expensive in a tree. Those that have changed wait in a list that
/// each search looks through, and are filed when the searches so far have cost as much as that.
class RectIndex
{
public:
    /// What the caller knows a rectangle by; small numbers, since they count the places of a table.
    using Key = std::uint32_t;
    using Keys = std::vector<Key>;

    RectIndex();
    ~RectIndex();
    RectIndex(const RectIndex &) = delete;
    RectIndex &operator=(const RectIndex &) = delete;

    /// Adds a rectangle, or gives it another place. One that is not finite is never found.
    void put(Key key, const QRectF &rect);
    void remove(Key key);

    /// Those that have a point in common with `area`, an edge included; in no order.
    Keys touching(const QRectF &area) const;
    /// Those that lie inside `area`, on its edges included; in no order.
    Keys containedIn(const QRectF &area) const;
    /// Those that the point is in: their left and top edges belong to them, the others do not; in no order.
    Keys at(const QPointF &point) const;

    /// How many wait to be filed.
    std::size_t waiting() const { return m_waiting.size(); }

private:
    struct Entry
    {
        QRectF rect;
        QRectF filed; // what the tree has
        bool isPresent = false;
        bool isFiled = false;
        bool isWaiting = false;
    };
    struct Tree;

    template <typename Accepts>
    Keys search(const QRectF &area, Accepts accepts) const;
    void letWait(Key key);
    void fileWhenWorthIt() const;
    void file() const;
    void rebuild() const;

    // Searching files what waits, and so changes these; what is found stays the same.
    mutable std::vector<Entry> m_entries;
    mutable Keys m_waiting;
    mutable std::size_t m_lookedAt = 0; // waiting entries, in all searches since the last filing
    std::unique_ptr<Tree> m_tree;
};

} // namespace tamble::client
