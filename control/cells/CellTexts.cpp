#include "cells/CellTexts.h"

#include "cells/RCellBase.h"
#include "cells/RCellContainerBase.h"
#include "cells/TabSeparated.h"

#include <QtCore/QPointer>

namespace tamble::client {

namespace {

enum class Offer { Taken, Refused, Nothing };

/// Nothing is lost when the cell has the text already, or when there is none for a place that no cell begins at.
Offer offer(CellArrangement &table, CellPlace place, const QString &text, bool isFilling)
{
    const QPointer<RCellBase> cell = table.cellBeginningAt(place);
    if (!cell)
        return isFilling || text.isEmpty() ? Offer::Nothing : Offer::Refused;
    if (cell->textToCopy() == text)
        return Offer::Nothing;
    const QString reason = cell->pasteText(text);
    if (reason.isEmpty())
        return Offer::Taken;
    if (cell)
        cell->setRefusal(RCellContainerBase::tr("\"%1\" was not taken: %2").arg(text, reason));
    return Offer::Refused;
}

} // namespace

QString textOf(CellArrangement &table, const CellArea &area)
{
    QList<QStringList> rows;
    for (int row = area.row; row < area.endRow(); ++row) {
        QStringList texts;
        for (int column = area.column; column < area.endColumn(); ++column) {
            const RCellBase *cell = table.cellBeginningAt({row, column});
            texts.append(cell ? cell->textToCopy() : QString());
        }
        rows.append(texts);
    }
    return toTabSeparated(rows);
}

TakenTexts putTexts(CellArrangement &table, const CellArea &area, const QList<QStringList> &rows)
{
    const bool isOne = rows.size() == 1 && rows.front().size() == 1;
    const int count = isOne ? area.rows : int(rows.size());
    TakenTexts result;
    const QPointer<CellArrangement> guard(&table);
    for (int row = 0; guard && row < count; ++row) {
        const QStringList texts = isOne ? QStringList(area.columns, rows[0][0]) : rows[row];
        for (int column = 0; guard && column < int(texts.size()); ++column) {
            const Offer answer = offer(table, {area.row + row, area.column + column}, texts[column], isOne);
            result.taken += answer == Offer::Taken ? 1 : 0;
            result.refused += answer == Offer::Refused ? 1 : 0;
        }
    }
    return result;
}

} // namespace tamble::client
