#include "lists/ListSelection.h"

#include <algorithm>

namespace tamble::client {

namespace {

RowRange between(int a, int b)
{
    return {std::min(a, b), std::max(a, b)};
}

} // namespace

void ListSelection::setMode(Mode mode)
{
    m_mode = mode;
    setRows(RowRanges(m_rows));
}

void ListSelection::setRows(const RowRanges &rows)
{
    if (m_mode == Multiple)
        m_rows = rows;
    else if (m_mode == Single && !rows.isEmpty())
        m_rows = RowRanges(RowRange{rows.first(), rows.first()});
    else
        m_rows = {};
    m_anchor = m_rows.first();
}

void ListSelection::select(int row)
{
    setRows(RowRanges(RowRange{row, row}));
}

void ListSelection::toggle(int row)
{
    const bool wasSelected = m_rows.contains(row);
    if (m_mode != Multiple) {
        setRows(wasSelected ? RowRanges() : RowRanges(RowRange{row, row}));
        return;
    }
    if (wasSelected)
        m_rows.remove({row, row});
    else
        m_rows.add({row, row});
    m_anchor = row;
}

void ListSelection::extendTo(int row, int from, bool keepsOthers)
{
    if (m_mode != Multiple) {
        select(row);
        return;
    }
    if (m_anchor < 0)
        m_anchor = from < 0 ? row : from;
    if (!keepsOthers)
        m_rows = {};
    m_rows.add(between(m_anchor, row));
}

void ListSelection::selectRange(int from, int to)
{
    if (m_mode != Multiple) {
        select(to);
        return;
    }
    m_rows = RowRanges(between(from, to));
    m_anchor = from;
}

void ListSelection::clear()
{
    m_rows = {};
    m_anchor = -1;
}

void ListSelection::follow(std::span<const RowChange> leaving, std::span<const RowChange> coming)
{
    m_rows = followed(std::move(m_rows), leaving, coming);
    m_anchor = followedRow(m_anchor, leaving, coming);
}

void ListSelection::replaceRows(const RowRanges &rows)
{
    m_rows = rows;
    m_anchor = -1;
}

} // namespace tamble::client
