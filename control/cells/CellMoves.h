#pragma once

#include "cells/CellPlan.h"

namespace tamble::client {

/// Steps of the current cell: to the neighbour, to the last cell of the row or column that way, to a corner.
enum class CellMove { Left, Right, Up, Down, LeftEdge, RightEdge, TopEdge, BottomEdge, FirstCell, LastCell };

/// Where a step leads from a place: over the whole of a cell that spans several places, and over places without a cell
/// that can be reached. It stays in its row or column; where nothing lies that way, it stays altogether. From no place
/// every step leads to the first cell.
CellPlace moved(const CellPlan &plan, CellPlace from, CellMove move);

} // namespace tamble::client
