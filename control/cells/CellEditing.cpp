#include "cells/CellEditing.h"

#include "base/InputMeaning.h"
#include "cells/CellViewFocus.h"
#include "cells/RCellBase.h"
#include "fields/FieldEdit.h"

#include <QtGui/QKeyEvent>

namespace tamble::client {

namespace {

/// The conversation with the device; null for a control that answers its own keys.
FieldEdit *fieldOf(const QObject &control, const QObject &editor, bool multiLine)
{
    return (multiLine ? editor : control).property("edit").value<FieldEdit *>();
}

/// The user stays with the text when another window or a popup takes the focus.
bool leavesForGood(const QFocusEvent &event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

CellEditing::CellEditing(RCellBase &cell)
    : m_cell(cell)
{}

bool CellEditing::takesKeys(const QQuickItem &control)
{
    return control.isFocusScope() || control.flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

bool CellEditing::setEditor(QQuickItem *editor)
{
    if (m_editor == editor)
        return false;
    if (m_editor)
        m_editor->removeEventFilter(this);
    const bool wasUnderWay = isUnderWay();
    m_editor = editor;
    if (editor)
        editor->installEventFilter(this);
    return wasUnderWay != isUnderWay();
}

// Before the editor, which knows nothing of the table.
bool CellEditing::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && fieldOf(*m_cell.control(), *m_editor, m_cell.isMultiLine()))
        return leaveBy(static_cast<QKeyEvent &>(*event));
    if (event->type() == QEvent::FocusOut && leavesForGood(*static_cast<QFocusEvent *>(event))) {
        // When the focus comes back to the table, it is to be in the cell again.
        const auto close = [cell = &m_cell] {
            if (cell->control() && !cell->hasActiveFocus())
                cell->control()->setFocus(false);
        };
        QMetaObject::invokeMethod(&m_cell, close, Qt::QueuedConnection);
    }
    return false;
}

bool CellEditing::leaveBy(QKeyEvent &event)
{
    const bool isTab = CellViewFocus::isTabKey(event);
    const bool isConfirming = isEnterKey(event) && (!m_cell.isMultiLine() || event.modifiers() == Qt::ControlModifier);
    if (event.key() != Qt::Key_Escape && !isTab && !isConfirming)
        return false;

    event.accept();
    const QPointer<RCellBase> cell(&m_cell);
    FieldEdit *field = fieldOf(*m_cell.control(), *m_editor, m_cell.isMultiLine());
    if (event.key() == Qt::Key_Escape) {
        if (field)
            field->cancel();
        if (cell)
            cell->endEditing();
        return true;
    }
    if (field && field->isEdited() && !field->enter())
        return true;
    const bool isBack = event.modifiers() & Qt::ShiftModifier;
    if (cell)
        cell->endEditing();
    if (cell)
        cell->stepBy(isTab ? (isBack ? CellMove::Left : CellMove::Right) : (isBack ? CellMove::Up : CellMove::Down));
    return true;
}

} // namespace tamble::client
