#include "cells/CellViewFocus.h"

#include "cells/PlacedCell.h"

#include <QtCore/QItemSelectionModel>
#include <QtGui/QKeyEvent>

#include <algorithm>

namespace tamble::client {

namespace {

/// What a view selects; null for other items.
QItemSelectionModel *selectionOf(const QQuickItem &view)
{
    return view.property("selectionModel").value<QItemSelectionModel *>();
}

bool leaveView(QQuickItem &view, const QKeyEvent &event)
{
    if (!CellViewFocus::isTabKey(event))
        return false;
    const bool isForward = event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier);
    QQuickItem *next = view.nextItemInFocusChain(isForward);
    next->forceActiveFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace

CellViewFocus::CellViewFocus(QQuickItem &view)
    : QObject(&view)
    , m_view(view)
{
    view.installEventFilter(this);
}

void CellViewFocus::follow(QQuickItem &view)
{
    const QObjectList &children = view.children();
    if (std::none_of(children.begin(), children.end(),
                     [](const QObject *child) { return dynamic_cast<const CellViewFocus *>(child); }))
        new CellViewFocus(view);
}

QQuickItem *CellViewFocus::viewOf(const QQuickItem &cell)
{
    for (QQuickItem *item = cell.parentItem(); item; item = item->parentItem()) {
        if (const auto *selection = selectionOf(*item); selection && selection->model())
            return item;
    }
    return nullptr;
}

void CellViewFocus::tell(const PlacedCell &cell)
{
    if (const QQuickItem *view = viewOf(cell)) {
        QItemSelectionModel *selection = selectionOf(*view);
        selection->setCurrentIndex(selection->model()->index(cell.row(), cell.column()), QItemSelectionModel::NoUpdate);
    }
}

bool CellViewFocus::isTabKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

bool CellViewFocus::leave(const QQuickItem &cell, const QKeyEvent &event)
{
    QQuickItem *view = viewOf(cell);
    return view && leaveView(*view, event);
}

bool CellViewFocus::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        enter();
    // No cell has the focus; such as in an empty table.
    return event->type() == QEvent::KeyPress && leaveView(m_view, static_cast<const QKeyEvent &>(*event));
}

void CellViewFocus::enter()
{
    QItemSelectionModel *selection = selectionOf(m_view);
    if (!selection || !selection->model() || selection->currentIndex().isValid())
        return;
    const int row = std::max(0, m_view.property("topRow").toInt());
    const int column = std::max(0, m_view.property("leftColumn").toInt());
    selection->setCurrentIndex(selection->model()->index(row, column), QItemSelectionModel::NoUpdate);
}

} // namespace tamble::client
