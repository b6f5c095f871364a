#include "lists/RowRanges.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace tamble::client {

namespace {

bool endsBefore(const RowRange &range, int row)
{
    return range.last < row;
}

} // namespace

RowRanges::RowRanges(QList<int> rows)
{
    std::ranges::sort(rows);
    for (const int row : std::as_const(rows)) {
        if (row < 0 || (!isEmpty() && row == m_ranges.back().last))
            continue;
        if (!isEmpty() && row == m_ranges.back().last + 1)
            ++m_ranges.back().last;
        else
            m_ranges.push_back({row, row});
    }
}

bool RowRanges::contains(int row) const
{
    const auto found = std::lower_bound(m_ranges.begin(), m_ranges.end(), row, endsBefore);
    return found != m_ranges.end() && found->first <= row;
}

QList<int> RowRanges::rows() const
{
    QList<int> rows;
    for (const RowRange &range : m_ranges) {
        const qsizetype before = rows.size();
        rows.resize(before + range.last - range.first + 1);
        std::iota(rows.begin() + before, rows.end(), range.first);
    }
    return rows;
}

void RowRanges::add(RowRange range)
{
    if (range.last < range.first)
        return;
    // Those that touch the range become part of it.
    const auto begin = std::lower_bound(m_ranges.begin(), m_ranges.end(), range.first - 1, endsBefore);
    auto end = begin;
    for (; end != m_ranges.end() && end->first - 1 <= range.last; ++end) {
        range.first = std::min(range.first, end->first);
        range.last = std::max(range.last, end->last);
    }
    m_ranges.insert(m_ranges.erase(begin, end), range);
}

void RowRanges::remove(RowRange range)
{
    if (range.last < range.first)
        return;
    const auto begin = std::lower_bound(m_ranges.begin(), m_ranges.end(), range.first, endsBefore);
    std::vector<RowRange> kept;
    auto end = begin;
    for (; end != m_ranges.end() && end->first <= range.last; ++end) {
        if (end->first < range.first)
            kept.push_back({end->first, range.first - 1});
        if (end->last > range.last)
            kept.push_back({range.last + 1, end->last});
    }
    m_ranges.insert(m_ranges.erase(begin, end), kept.begin(), kept.end());
}

void RowRanges::takeOut(int first, int count)
{
    remove({first, first + count - 1});
    auto range = std::lower_bound(m_ranges.begin(), m_ranges.end(), first, endsBefore);
    const bool meets = range != m_ranges.end() && range != m_ranges.begin() && std::prev(range)->last == first - 1 &&
                       range->first == first + count;
    for (auto behind = range; behind != m_ranges.end(); ++behind) {
        behind->first -= count;
        behind->last -= count;
    }
    if (meets) {
        std::prev(range)->last = range->last;
        m_ranges.erase(range);
    }
}

void RowRanges::makeRoom(int first, int count)
{
    if (count <= 0)
        return;
    auto range = std::lower_bound(m_ranges.begin(), m_ranges.end(), first, endsBefore);
    if (range != m_ranges.end() && range->first < first) {
        const RowRange before{range->first, first - 1};
        range->first = first;
        range = std::next(m_ranges.insert(range, before));
    }
    for (; range != m_ranges.end(); ++range) {
        range->first += count;
        range->last += count;
    }
}

RowRanges RowRanges::part(int first, int count) const
{
    RowRanges part;
    auto range = std::lower_bound(m_ranges.begin(), m_ranges.end(), first, endsBefore);
    for (; range != m_ranges.end() && range->first < first + count; ++range)
        part.m_ranges.push_back({std::max(range->first - first, 0), std::min(range->last - first, count - 1)});
    return part;
}

void RowRanges::add(const RowRanges &others, int offset)
{
    for (const RowRange &range : others.m_ranges)
        add({range.first + offset, range.last + offset});
}

RowRanges followed(RowRanges rows, std::span<const RowChange> leaving, std::span<const RowChange> coming)
{
    std::map<int, RowRanges> underWay; // by move
    for (const RowChange &change : leaving) {
        if (change.move >= 0)
            underWay[change.move].add(rows.part(change.first, change.count), change.offset);
        rows.takeOut(change.first, change.count);
    }
    for (const RowChange &change : coming) {
        rows.makeRoom(change.first, change.count);
        if (change.move >= 0)
            rows.add(underWay[change.move].part(change.offset, change.count), change.first);
    }
    return rows;
}

int followedRow(int row, std::span<const RowChange> leaving, std::span<const RowChange> coming)
{
    return row < 0 ? -1 : followed(RowRanges(RowRange{row, row}), leaving, coming).first();
}

} // namespace tamble::client
