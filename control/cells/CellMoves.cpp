#include "cells/CellMoves.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// A step along a row or a column: `sign` is 1 towards its end.
struct Direction
{
    bool alongRow;
    int sign;
    bool toEdge;
};

Direction directionOf(CellMove move)
{
    switch (move) {
    case CellMove::Left:
        return {true, -1, false};
    case CellMove::Right:
        return {true, 1, false};
    case CellMove::Up:
        return {false, -1, false};
    case CellMove::Down:
        return {false, 1, false};
    case CellMove::LeftEdge:
        return {true, -1, true};
    case CellMove::RightEdge:
        return {true, 1, true};
    case CellMove::TopEdge:
        return {false, -1, true};
    default:
        return {false, 1, true};
    }
}

/// How many places lie between two areas on the way; negative when the other one is not that way.
int gapTo(const CellArea &other, const CellArea &here, const Direction &way)
{
    if (way.alongRow)
        return way.sign > 0 ? other.column - here.endColumn() : here.column - other.endColumn();
    return way.sign > 0 ? other.row - here.endRow() : here.row - other.endRow();
}

CellPlace along(const CellPlan &plan, CellPlace from, const Direction &way)
{
    const CellArea here = plan.areaAt(from);
    CellPlace found = from;
    int foundGap = -1;
    for (const CellPlan::Cell &cell : plan.cells()) {
        const CellArea &area = cell.area;
        // The place that the step would lead to, which another cell may lie over.
        const CellPlace place = way.alongRow ? CellPlace{from.row, area.column} : CellPlace{area.row, from.column};
        const int gap = gapTo(area, here, way);
        const bool isBetter = foundGap < 0 || (way.toEdge ? gap > foundGap : gap < foundGap);
        if (!cell.isReachable || gap < 0 || !isBetter || !area.contains(place))
            continue;
        found = place;
        foundGap = gap;
    }
    return found;
}

CellPlace corner(const CellPlan &plan, CellPlace from, bool first)
{
    std::vector<CellPlace> places;
    for (const CellPlan::Cell &cell : plan.cells()) {
        if (cell.isReachable)
            places.push_back(cell.area.place());
    }
    if (places.empty())
        return from;
    const auto order = [](const CellPlace &place) { return std::pair(place.row, place.column); };
    return first ? std::ranges::min(places, {}, order) : std::ranges::max(places, {}, order);
}

} // namespace

CellPlace moved(const CellPlan &plan, CellPlace from, CellMove move)
{
    if (from.isNone() || move == CellMove::FirstCell || move == CellMove::LastCell)
        return corner(plan, from, from.isNone() || move == CellMove::FirstCell);
    return along(plan, from, directionOf(move));
}

} // namespace tamble::client
