#pragma once

#include <QtCore/QList>

#include <span>
#include <vector>

namespace tamble::client {

/// Rows of a list that follow each other, both ends included; rows are numbered from 0.
struct RowRange
{
    int first = 0;
    int last = -1;

    friend bool operator==(const RowRange &, const RowRange &) = default;
};

/// A run of rows that leaves a list, or comes into it. Runs with the same `move` other than -1 are one that goes
/// elsewhere; each begins `offset` rows behind the beginning of that.
struct RowChange
{
    int first = 0;
    int count = 0;
    int move = -1;
    int offset = 0;
};

/// Set of rows, kept as ranges in ascending order that neither overlap nor touch: all of 100,000 rows are one.
class RowRanges
{
public:
    RowRanges() = default;
    explicit RowRanges(RowRange range) { add(range); }
    /// Rows in any order; those below 0 are left out.
    explicit RowRanges(QList<int> rows);

    bool isEmpty() const { return m_ranges.empty(); }
    bool contains(int row) const;
    const std::vector<RowRange> &ranges() const { return m_ranges; }
    /// All rows in ascending order.
    QList<int> rows() const;
    /// The lowest row; -1 for none.
    int first() const { return isEmpty() ? -1 : m_ranges.front().first; }

    /// Adds a range to the set, or takes it away; one that ends before it begins changes nothing.
    void add(RowRange range);
    void remove(RowRange range);

    /// Rows leave the list and those behind them close up.
    void takeOut(int first, int count);
    /// Rows come into the list, none of them in the set, and those from there on make room.
    void makeRoom(int first, int count);
    /// What of the set lies in a part of the list, counted from its beginning.
    RowRanges part(int first, int count) const;
    /// Adds another set, so many rows further down.
    void add(const RowRanges &others, int offset);

    friend bool operator==(const RowRanges &, const RowRanges &) = default;

private:
    std::vector<RowRange> m_ranges;
};

/// The same rows after a change of the list. Changes count one after the other, first all that leave: each is numbered
/// as those before it have left the list.
RowRanges followed(RowRanges rows, std::span<const RowChange> leaving, std::span<const RowChange> coming);
/// Likewise for one row; -1 for one that has left, and for none.
int followedRow(int row, std::span<const RowChange> leaving, std::span<const RowChange> coming);

} // namespace tamble::client
