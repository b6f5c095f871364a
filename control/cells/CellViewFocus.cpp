#include "cells/CellViewFocus.h"

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace tamble::client {

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

QItemSelectionModel *CellViewFocus::selectionOf(const QQuickItem &view)
{
    return view.property("selectionModel").value<QItemSelectionModel *>();
}

bool CellViewFocus::isTabKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

bool CellViewFocus::leave(QQuickItem &view, const QKeyEvent &event)
{
    if (!isTabKey(event))
        return false;
    const bool isForward = event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier);
    QQuickItem *next = view.nextItemInFocusChain(isForward);
    next->forceActiveFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool CellViewFocus::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        enter();
    // No cell has the focus; such as in an empty table.
    return event->type() == QEvent::KeyPress && leave(m_view, static_cast<const QKeyEvent &>(*event));
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
