#include "cells/CellPlan.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

CellArea CellArea::ofCell(int row, int column, int rowSpan, int columnSpan)
{
    CellArea area;
    area.row = std::clamp(row, 0, limit - 1);
    area.column = std::clamp(column, 0, limit - 1);
    area.rows = std::clamp(rowSpan, 1, limit - area.row);
    area.columns = std::clamp(columnSpan, 1, limit - area.column);
    return area;
}

bool CellArea::contains(CellPlace place) const
{
    return place.row >= row && place.row < endRow() && place.column >= column && place.column < endColumn();
}

bool CellArea::touches(const CellArea &other) const
{
    return row < other.endRow() && other.row < endRow() && column < other.endColumn() && other.column < endColumn();
}

CellArea CellArea::united(const CellArea &other) const
{
    if (isEmpty() || other.isEmpty())
        return isEmpty() ? other : *this;
    CellArea both{std::min(row, other.row), std::min(column, other.column)};
    both.rows = std::max(endRow(), other.endRow()) - both.row;
    both.columns = std::max(endColumn(), other.endColumn()) - both.column;
    return both;
}

CellPlan::CellPlan(std::vector<Cell> cells)
    : m_cells(std::move(cells))
{
    for (const Cell &cell : m_cells) {
        m_rowCount = std::max(m_rowCount, cell.area.endRow());
        m_columnCount = std::max(m_columnCount, cell.area.endColumn());
    }
}

int CellPlan::cellAt(CellPlace place) const
{
    const auto top =
        std::find_if(m_cells.rbegin(), m_cells.rend(), [place](const Cell &cell) { return cell.area.contains(place); });
    return int(m_cells.rend() - top) - 1;
}

CellArea CellPlan::areaAt(CellPlace place) const
{
    const int index = cellAt(place);
    return index < 0 ? CellArea{place.row, place.column, 1, 1} : m_cells[std::size_t(index)].area;
}

std::optional<CellPlace> CellPlan::overlap() const
{
    std::vector<CellArea> areas;
    areas.reserve(m_cells.size());
    for (const Cell &cell : m_cells)
        areas.push_back(cell.area);
    std::ranges::sort(areas, {}, [](const CellArea &area) { return std::pair(area.row, area.column); });
    for (auto upper = areas.begin(); upper != areas.end(); ++upper) {
        for (auto lower = upper + 1; lower != areas.end() && lower->row < upper->endRow(); ++lower) {
            if (lower->touches(*upper))
                return CellPlace{lower->row, std::max(lower->column, upper->column)};
        }
    }
    return std::nullopt;
}

CellArea CellPlan::wholeCells(CellArea area) const
{
    for (bool grows = !area.isEmpty(); grows;) {
        const CellArea before = area;
        for (const Cell &cell : m_cells) {
            if (cell.area.touches(area))
                area = area.united(cell.area);
        }
        grows = area != before;
    }
    return area;
}

} // namespace tamble::client
