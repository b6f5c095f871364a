#include "cells/RCellBase.h"
#include "cells/RCellContainerBase.h"
#include "cells/TabSeparated.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

// The part of RCellContainerBase that exchanges texts with other programs.

namespace tamble::client {

void RCellContainerBase::copy()
{
    const CellArea area = selectedArea();
    if (area.isEmpty())
        return;
    QList<QStringList> rows;
    for (int row = area.row; row < area.endRow(); ++row) {
        QStringList texts;
        for (int column = area.column; column < area.endColumn(); ++column) {
            const RCellBase *cell = cellBeginningAt({row, column});
            texts.append(cell ? cell->textToCopy() : QString());
        }
        rows.append(texts);
    }
    QGuiApplication::clipboard()->setText(toTabSeparated(rows));
}

void RCellContainerBase::paste()
{
    const QList<QStringList> rows = fromTabSeparated(QGuiApplication::clipboard()->text());
    CellArea area = selectedArea();
    if (rows.isEmpty() || area.isEmpty())
        return;
    const bool isOne = rows.size() == 1 && rows.front().size() == 1;
    if (!isOne)
        area.rows = int(rows.size());
    for (const auto &cell : std::vector(m_cells)) {
        if (cell)
            cell->setRefusal({});
    }

    int taken = 0;
    int refused = 0;
    const QPointer<RCellContainerBase> guard(this);
    for (int row = 0; guard && row < area.rows; ++row) {
        const QStringList texts = isOne ? QStringList(area.columns, rows[0][0]) : rows[row];
        for (int column = 0; guard && column < int(texts.size()); ++column) {
            const CellPlace place{area.row + row, area.column + column};
            switch (offer(place, texts[column], isOne)) {
            case Offer::Taken:
                ++taken;
                break;
            case Offer::Refused:
                ++refused;
                break;
            case Offer::Nothing:
                break;
            }
        }
    }
    if (guard)
        Q_EMIT pasted(taken, refused);
}

/// Nothing is lost when the cell has the text already, or when there is none for a place that no cell begins at.
RCellContainerBase::Offer RCellContainerBase::offer(CellPlace place, const QString &text, bool isFilling)
{
    const QPointer<RCellBase> cell = cellBeginningAt(place);
    if (!cell)
        return isFilling || text.isEmpty() ? Offer::Nothing : Offer::Refused;
    if (cell->textToCopy() == text)
        return Offer::Nothing;
    const QString reason = cell->pasteText(text);
    if (reason.isEmpty())
        return Offer::Taken;
    if (cell)
        cell->setRefusal(tr("\"%1\" was not taken: %2").arg(text, reason));
    return Offer::Refused;
}

RCellBase *RCellContainerBase::cellBeginningAt(CellPlace place)
{
    const int index = plan().cellAt(place);
    if (index < 0 || m_plan.cells()[std::size_t(index)].area.place() != place)
        return nullptr;
    return m_cells[std::size_t(index)];
}

} // namespace tamble::client
