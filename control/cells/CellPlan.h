#pragma once

#include <optional>
#include <vector>

namespace tamble::client {

/// A place in a table, counted from 0; none when one of the two is negative.
struct CellPlace
{
    int row = -1;
    int column = -1;

    bool isNone() const { return row < 0 || column < 0; }
    friend bool operator==(const CellPlace &, const CellPlace &) = default;
};

/// A rectangle of places: the ones that a cell takes, or that are selected. Empty without rows or columns.
struct CellArea
{
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;

    /// Of a cell as a page describes it: negative positions count as 0, spans below 1 as 1, and nothing lies behind
    /// `limit` rows or columns, since one wrong number must not make a table that fills the memory.
    static CellArea ofCell(int row, int column, int rowSpan, int columnSpan);
    static constexpr int limit = 4096;

    CellPlace place() const { return {row, column}; }
    int endRow() const { return row + rows; }
    int endColumn() const { return column + columns; }
    bool isEmpty() const { return rows <= 0 || columns <= 0; }
    bool contains(CellPlace place) const;
    bool touches(const CellArea &other) const;
    CellArea united(const CellArea &other) const;
    friend bool operator==(const CellArea &, const CellArea &) = default;
};

/// Which cell of a table is where.
class CellPlan
{
public:
    struct Cell
    {
        CellArea area;
        bool isReachable = true; ///< Whether the current cell can be this one.
    };

    CellPlan() = default;
    /// Of cells that lie over each other, the later one is on top.
    explicit CellPlan(std::vector<Cell> cells);

    const std::vector<Cell> &cells() const { return m_cells; }
    int rowCount() const { return m_rowCount; }
    int columnCount() const { return m_columnCount; }

    /// Index of the cell at a place; -1 where there is none.
    int cellAt(CellPlace place) const;
    /// The places of the cell at a place; that place alone where there is none.
    CellArea areaAt(CellPlace place) const;
    /// A place that two cells take; none when all lie apart.
    std::optional<CellPlace> overlap() const;
    /// The area and the whole of every cell that it touches.
    CellArea wholeCells(CellArea area) const;

private:
    std::vector<Cell> m_cells;
    int m_rowCount = 0;
    int m_columnCount = 0;
};

} // namespace tamble::client
