#include "cells/RCellBase.h"

#include "base/InputMeaning.h"
#include "cells/CellViewFocus.h"
#include "cells/RCellContainerBase.h"
#include "controls/RButtonBase.h"
#include "fields/FieldEdit.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QItemSelectionModel>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>
#include <QtQuick/QQuickWindow>

#include <utility>

// The part of RCellBase that answers keys and the mouse, and leads into editing and out of it.

namespace tamble::client {

namespace {

/// A character that begins a text. AltGr counts as Ctrl and Alt on some systems.
bool typesText(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isPlain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    return isPlain && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Keys that would lead to another cell; while one is edited they are the editor's.
bool leadsElsewhere(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

bool takesKeys(const QQuickItem &item)
{
    return item.isFocusScope() || item.flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

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

bool RCellBase::edit()
{
    if (!m_control || isLocked() || !m_control->isEnabled() || !takesKeys(*m_control))
        return false;
    m_control->forceActiveFocus(Qt::TabFocusReason);
    return m_control && m_control->hasActiveFocus();
}

void RCellBase::endEditing()
{
    if (m_editor)
        m_control->setFocus(false, Qt::OtherFocusReason);
}

void RCellBase::use()
{
    const QPointer<RCellBase> guard(this);
    auto *button = qobject_cast<RButtonBase *>(m_control.get());
    if (button && !isLocked()) {
        button->click();
        return;
    }
    edit();
    if (guard)
        Q_EMIT activated(-1);
}

void RCellBase::followFocus()
{
    const bool isOpen = m_control && m_control->hasActiveFocus() && takesKeys(*m_control) && !isLocked();
    QQuickItem *editor = isOpen ? window()->activeFocusItem() : nullptr;
    if (m_editor != editor) {
        if (m_editor)
            m_editor->removeEventFilter(this);
        const bool wasEditing = isEditing();
        m_editor = editor;
        if (editor) {
            editor->installEventFilter(this);
            setRefusal({});
        }
        if (wasEditing != isEditing())
            Q_EMIT editingChanged();
    }
    updateFrames();
}

// Before the editor, which knows nothing of the table.
bool RCellBase::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && fieldOf(*m_control, *m_editor, m_multiLine))
        return leaveBy(static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::FocusOut && leavesForGood(*static_cast<QFocusEvent *>(event))) {
        // When the focus comes back to the table, it is to be in the cell again.
        const auto close = [this] {
            if (m_control && !hasActiveFocus())
                m_control->setFocus(false);
        };
        QMetaObject::invokeMethod(this, close, Qt::QueuedConnection);
    }
    return QQuickItem::eventFilter(watched, event);
}

/// Whether the key is one that ends editing; a text that is refused stays open.
bool RCellBase::leaveBy(QKeyEvent *event)
{
    const bool isTab = CellViewFocus::isTabKey(*event);
    const bool isConfirming = isEnterKey(*event) && (!m_multiLine || event->modifiers() == Qt::ControlModifier);
    if (event->key() != Qt::Key_Escape && !isTab && !isConfirming)
        return false;

    event->accept();
    const QPointer<RCellBase> guard(this);
    FieldEdit *field = fieldOf(*m_control, *m_editor, m_multiLine);
    if (event->key() == Qt::Key_Escape) {
        if (field)
            field->cancel();
        if (guard)
            endEditing();
        return true;
    }
    if (field && field->isEdited() && !field->enter())
        return true;
    const bool isBack = event->modifiers() & Qt::ShiftModifier;
    if (guard)
        endEditing();
    if (guard && m_container && isTab)
        m_container->step(isBack ? CellMove::Left : CellMove::Right);
    else if (guard && m_container)
        m_container->step(isBack ? CellMove::Up : CellMove::Down);
    return true;
}

void RCellBase::keyPressEvent(QKeyEvent *event)
{
    if (isEditing()) {
        event->setAccepted(leaveBy(event) || leadsElsewhere(*event));
    } else if (isEnterKey(*event) || event->key() == Qt::Key_F2) {
        // Held down, it answers once: what a button does may get loud.
        if (!event->isAutoRepeat())
            use();
    } else if (asksForMenu(*event)) {
        Q_EMIT contextMenuRequested(boundingRect().center());
    } else if (typesText(*event) && edit()) {
        QKeyEvent typed(QEvent::KeyPress, event->key(), event->modifiers(), event->text());
        QCoreApplication::sendEvent(window()->activeFocusItem(), &typed);
    } else if (m_container || !leaveView(*event)) {
        event->ignore();
    }
}

void RCellBase::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->position();
    if (!isByFinger(*event))
        takeFocus();
    if (event->button() == Qt::RightButton)
        Q_EMIT contextMenuRequested(m_pressedAt);
    else
        m_longPress.start(longPressMs, this);
}

void RCellBase::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF way = event->position() - m_pressedAt;
    if (way.manhattanLength() > QGuiApplication::styleHints()->startDragDistance())
        m_longPress.stop();
}

void RCellBase::mouseReleaseEvent(QMouseEvent *event)
{
    m_longPress.stop();
    // A finger may scroll until it is lifted.
    if (isByFinger(*event))
        takeFocus();
}

void RCellBase::takeFocus()
{
    if (!m_container || m_container->isReachable(*this))
        forceActiveFocus(Qt::MouseFocusReason);
}

void RCellBase::mouseUngrabEvent()
{
    m_longPress.stop();
}

void RCellBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_longPress.stop();
    if (event->button() == Qt::LeftButton)
        use();
}

void RCellBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_longPress.timerId())
        return;
    m_longPress.stop();
    Q_EMIT contextMenuRequested(m_pressedAt);
}

bool RCellBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (isLocked() && qobject_cast<QQuickAbstractButton *>(m_control.get())) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
            forceActiveFocus(Qt::MouseFocusReason);
        return true;
    }
    // A field has a menu of its own, which is meant while it is edited.
    if (event->type() != QEvent::MouseButtonPress || isEditing())
        return false;
    const auto *press = static_cast<QMouseEvent *>(event);
    if (press->button() != Qt::RightButton)
        return false;
    takeFocus();
    Q_EMIT contextMenuRequested(mapFromItem(item, press->position()));
    return true;
}

QQuickItem *RCellBase::tableView() const
{
    for (QQuickItem *item = parentItem(); item; item = item->parentItem()) {
        if (const auto *selection = CellViewFocus::selectionOf(*item); selection && selection->model())
            return item;
    }
    return nullptr;
}

// A TableView moves its current index with the arrow keys, but knows nothing of presses that a delegate takes.
void RCellBase::tellView()
{
    if (const QQuickItem *view = tableView()) {
        QItemSelectionModel *selection = CellViewFocus::selectionOf(*view);
        selection->setCurrentIndex(selection->model()->index(m_row, m_column), QItemSelectionModel::NoUpdate);
    }
}

// Some versions of Qt walk through all cells by Tab.
bool RCellBase::leaveView(const QKeyEvent &event)
{
    QQuickItem *view = tableView();
    return view && CellViewFocus::leave(*view, event);
}

} // namespace tamble::client
