#pragma once

#include "cells/CellPlan.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace tamble::client {

class CellArrangement;

/// How many texts cells have taken, and how many not.
struct TakenTexts
{
    int taken = 0;
    int refused = 0;
};

/// The texts of the cells in an area, tab-separated.
QString textOf(CellArrangement &table, const CellArea &area);
/// One text for all cells of an area, or several from its first cell on. Cells that take none show why.
TakenTexts putTexts(CellArrangement &table, const CellArea &area, const QList<QStringList> &rows);

} // namespace tamble::client
