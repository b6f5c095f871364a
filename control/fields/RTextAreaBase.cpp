#include "fields/RTextAreaBase.h"

#include <QtGui/QKeyEvent>

namespace tamble::client {

RTextAreaBase::RTextAreaBase(QQuickItem *parent)
    : QQuickTextArea(parent)
{}

void RTextAreaBase::setEdit(FieldEdit *edit)
{
    if (m_edit == edit)
        return;
    m_edit = edit;
    Q_EMIT editChanged();
}

void RTextAreaBase::addSpokenStates(QAccessible::State &state) const
{
    state.multiLine = true;
    state.editable = !isReadOnly();
    state.readOnly = isReadOnly();
}

void RTextAreaBase::keyPressEvent(QKeyEvent *event)
{
    // The window moves the focus for a Tab that nobody takes.
    if (m_tabChangesFocus && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab))
        event->ignore();
    else
        QQuickTextArea::keyPressEvent(event);
}

} // namespace tamble::client
