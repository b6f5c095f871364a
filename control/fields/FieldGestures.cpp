#include "fields/FieldGestures.h"

#include "base/InputMeaning.h"
#include "fields/EditedText.h"
#include "fields/FieldEdit.h"
#include "fields/FieldMenu.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>

namespace tamble::client {

namespace {

bool enters(const EditedText &text, const QKeyEvent &key)
{
    return isEnterKey(key) && (!text.hasManyLines() || (key.modifiers() & Qt::ControlModifier));
}

bool types(const QKeyEvent &key)
{
    return (!key.text().isEmpty() && key.text()[0].isPrint()) || key.matches(QKeySequence::Paste);
}

bool undoes(const QKeyEvent &key)
{
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

/// Leaving for another window or a popup is no end of typing.
bool staysWithTheUser(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

bool comesByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

FieldGestures::FieldGestures(FieldEdit &edit)
    : m_edit(edit)
{}

bool FieldGestures::handle(EditedText &text, QEvent &event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride: {
        const auto &key = static_cast<QKeyEvent &>(event);
        if (isOfThePage(key)) {
            event.ignore();
            return true;
        }
        // Before whatever Esc or Enter do around the field.
        const bool isMine = m_edit.isEdited() && (key.key() == Qt::Key_Escape || enters(text, key));
        if (isMine)
            event.accept();
        return isMine;
    }
    case QEvent::KeyPress:
        return onKey(text, static_cast<QKeyEvent &>(event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return onDrag(text, static_cast<QDropEvent &>(event));
    case QEvent::FocusIn:
        if (!text.hasManyLines() && comesByKey(static_cast<QFocusEvent &>(event).reason()))
            text.selectAll();
        return false;
    case QEvent::FocusOut:
        onFocusLost(static_cast<QFocusEvent &>(event).reason());
        return false;
    case QEvent::MouseButtonPress:
        return onPress(text, static_cast<const QMouseEvent &>(event));
    case QEvent::MouseMove:
        return onMove(static_cast<const QMouseEvent &>(event));
    case QEvent::MouseButtonRelease:
        return onRelease(text, event);
    case QEvent::UngrabMouse:
        m_longPress.stop();
        return false;
    default:
        return false;
    }
}

/// What was entered is the page's to undo. Qt's editor would take back the typing, for the next loss of the focus to
/// enter what is left: nothing at all in a field that was mixed.
bool FieldGestures::isOfThePage(const QKeyEvent &key) const
{
    return undoes(key) && !m_edit.isEdited();
}

bool FieldGestures::onKey(EditedText &text, QKeyEvent &key)
{
    if (isOfThePage(key)) {
        key.ignore();
        return true;
    }
    if (key.key() == Qt::Key_Menu || (key.key() == Qt::Key_F10 && (key.modifiers() & Qt::ShiftModifier))) {
        openFieldMenu(&text.item());
        return true;
    }
    const bool isEntered = enters(text, key);
    if (!isEntered && key.key() != Qt::Key_Escape)
        return types(key) && !text.isReadOnly() && onTypingKey(text, key);
    // Of an unedited field they mean the dialog around it.
    key.setAccepted(m_edit.isEdited());
    if (!m_edit.isEdited())
        return true;
    const QPointer<FieldEdit> guard(&m_edit);
    if (!isEntered)
        m_edit.cancel();
    else if (m_edit.enter() && guard && !text.hasManyLines())
        text.selectAll();
    return true;
}

bool FieldGestures::onTypingKey(EditedText &text, QKeyEvent &key)
{
    if (key.matches(QKeySequence::Paste)) {
        m_edit.paste(QGuiApplication::clipboard()->text(), text.selectionStart(), text.selectionEnd());
        return true;
    }
    if (!text.validator())
        return false;
    const QPointer<FieldEdit> guard(&m_edit);
    const QString before = text.text();
    const QString wanted = text.hasSelection() ? key.text() : QString(before).insert(text.caret(), key.text());
    QObject &editor = text.item();
    editor.event(&key);
    // Its validator has kept it out, without a word.
    if (guard && key.isAccepted() && text.text() == before && before != wanted)
        m_edit.noticeRefusal(wanted);
    return true;
}

bool FieldGestures::onDrag(EditedText &text, QDropEvent &drag)
{
    if (text.isReadOnly() || !drag.mimeData()->hasText()) {
        drag.ignore();
        return true;
    }
    drag.acceptProposedAction();
    if (drag.type() == QEvent::Drop) {
        const int position = text.positionAt(drag.position());
        text.item().forceActiveFocus(Qt::MouseFocusReason);
        m_edit.paste(drag.mimeData()->text(), position, position);
    }
    return true;
}

bool FieldGestures::onPress(EditedText &text, const QMouseEvent &press)
{
    if (press.button() == Qt::RightButton) {
        text.item().forceActiveFocus(Qt::MouseFocusReason);
        openFieldMenu(&text.item(), press.position());
        return true;
    }
    m_focusedByPress = !text.item().hasActiveFocus();
    m_wasLongPress = false;
    m_pressedAt = press.position();
    m_selectionAtPress = {text.selectionStart(), text.selectionEnd()};
    // A mouse has a right button, and selects while its left one is held.
    if (isByFinger(press))
        m_longPress.start(longPressMs, &m_edit);
    return false;
}

bool FieldGestures::onMove(const QMouseEvent &move)
{
    const QPointF way = move.position() - m_pressedAt;
    if (way.manhattanLength() > QGuiApplication::styleHints()->startDragDistance())
        m_longPress.stop();
    return m_wasLongPress;
}

void FieldGestures::onTimer(EditedText &text, const QTimerEvent &event)
{
    if (event.timerId() != m_longPress.timerId())
        return;
    m_longPress.stop();
    m_wasLongPress = true;
    text.item().forceActiveFocus(Qt::MouseFocusReason);
    // Without the selection, which the press has taken away, a finger could not copy.
    const int caret = text.positionAt(m_pressedAt);
    const auto [begin, end] = m_selectionAtPress;
    text.select(begin == end ? caret : begin, begin == end ? caret : end);
    openFieldMenu(&text.item(), m_pressedAt);
}

/// The click that brings the focus to a line selects all of it.
bool FieldGestures::onRelease(EditedText &text, QEvent &release)
{
    m_longPress.stop();
    const bool isFirstClick = std::exchange(m_focusedByPress, false) && !text.hasManyLines();
    if (m_wasLongPress || !isFirstClick)
        return std::exchange(m_wasLongPress, false);
    const QPointer<FieldEdit> guard(&m_edit);
    QObject &editor = text.item();
    editor.event(&release);
    if (guard && text.item().hasActiveFocus() && !text.hasSelection())
        text.selectAll();
    return true;
}

void FieldGestures::onFocusLost(Qt::FocusReason reason)
{
    if (staysWithTheUser(reason))
        return;
    if (m_edit.isEdited() && m_edit.commitsOnFocusLoss()) {
        if (m_edit.isAcceptable() && m_edit.canEdit())
            m_edit.enter();
        else
            m_edit.cancel();
    }
}

} // namespace tamble::client
