// What keys, wheel and pointer do to the list of a combo box.

#include "fields/RComboBoxBase.h"

#include "fields/RTextFieldBase.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

bool isChoosingKey(int key)
{
    return key == Qt::Key_Enter || key == Qt::Key_Return || key == Qt::Key_Space;
}

bool writesText(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

template <typename Move>
void RComboBoxBase::moveHighlight(Move move)
{
    const int before = m_highlight.entry();
    move();
    if (m_highlight.entry() == before)
        return;
    Q_EMIT highlightedEntryChanged();
    Q_EMIT highlightMoved(m_highlight.entry());
    Q_EMIT highlighted(m_highlight.entry());
}

// Before whatever Esc or Enter do around the box.
bool RComboBoxBase::takesFirst(const QEvent &event) const
{
    if (event.type() != QEvent::ShortcutOverride || !m_isOpen)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Escape || key == Qt::Key_Enter || key == Qt::Key_Return;
}

bool RComboBoxBase::event(QEvent *event)
{
    if (!takesFirst(*event))
        return QQuickComboBox::event(event);
    event->accept();
    return true;
}

bool RComboBoxBase::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_field && takesFirst(*event)) {
        event->accept();
        return true;
    }
    if (object == m_field && event->type() == QEvent::KeyPress && handleFieldKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QQuickComboBox::eventFilter(object, event);
}

// The field of an editable box has the focus; these are the list's all the same.
bool RComboBoxBase::handleFieldKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_F4:
        if (!m_isOpen)
            return handleClosedKey(event);
        m_typesInField = false;
        return handleListKey(event);
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return m_isOpen && !m_typesInField && handleListKey(event);
    case Qt::Key_Escape:
        return m_isOpen && handleListKey(event);
    default:
        return false;
    }
}

void RComboBoxBase::onTextTyped()
{
    m_typesInField = true;
    if (m_isOpen)
        moveHighlight([this] { m_highlight.find(m_field->text(), 0); });
}

// In place of the template, whose keys choose at once.
void RComboBoxBase::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(m_isOpen ? handleListKey(*event) : handleClosedKey(*event));
}

void RComboBoxBase::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(isChoosingKey(event->key()) && !isEditable() && canOpen());
}

bool RComboBoxBase::handleClosedKey(const QKeyEvent &event)
{
    const bool isArrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    const bool isChoosing = isChoosingKey(event.key()) && !isEditable();
    const bool isTyped = m_opensByTyping && !isEditable() && !isChoosing && writesText(event);
    if (!(isArrow || event.key() == Qt::Key_F4 || isChoosing || isTyped) || !canOpen())
        return false;
    if (!event.isAutoRepeat() || isArrow) {
        m_openedByKey = true;
        open();
    }
    if (isTyped && m_isOpen)
        handleListKey(event);
    return true;
}

bool RComboBoxBase::handleListKey(const QKeyEvent &event)
{
    const int page = std::max(1, m_maximumVisibleItems - 1);
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_F4:
        close();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (event.modifiers() & Qt::AltModifier)
            close();
        else
            moveHighlight([&] { m_highlight.move(event.key() == Qt::Key_Up ? -1 : 1); });
        return true;
    case Qt::Key_PageUp:
        moveHighlight([&] { m_highlight.move(-page); });
        return true;
    case Qt::Key_PageDown:
        moveHighlight([&] { m_highlight.move(page); });
        return true;
    case Qt::Key_Home:
        moveHighlight([this] { m_highlight.moveToFirst(); });
        return true;
    case Qt::Key_End:
        moveHighlight([this] { m_highlight.moveToLast(); });
        return true;
    default:
        break;
    }
    if (isChoosingKey(event.key()) && !(event.key() == Qt::Key_Space && m_highlight.isTyping())) {
        // Held, the key that has opened the list would choose in it.
        if (event.isAutoRepeat())
            return true;
        if (isEntryEnabled(m_highlight.entry()))
            choose(m_highlight.entry());
        else
            close();
        return true;
    }
    if (isEditable() || !writesText(event))
        return false;
    moveHighlight([&] { m_highlight.type(event.text()); });
    return true;
}

// In place of the template, which chooses while the list is closed.
void RComboBoxBase::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_isOpen);
    if (!m_isOpen)
        return;
    m_wheelAngle += event->angleDelta().y();
    const int notches = m_wheelAngle / QWheelEvent::DefaultDeltasPerStep;
    m_wheelAngle -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        moveHighlight([&] { m_highlight.move(-notches); });
}

void RComboBoxBase::pointAt(int index, const QPointF &place)
{
    const int before = m_highlight.entry();
    m_highlight.pointAt(index, place);
    if (m_highlight.entry() == before)
        return;
    m_typesInField = false;
    Q_EMIT highlightedEntryChanged();
}

void RComboBoxBase::onListVisible(bool visible)
{
    if (std::exchange(m_isOpen, visible) == visible)
        return;
    m_wheelAngle = 0;
    m_typesInField = false;
    m_highlight.begin(visible && !isMixed() ? currentIndex() : -1, std::exchange(m_openedByKey, false));
    Q_EMIT highlightedEntryChanged();
    Q_EMIT editingChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

void RComboBoxBase::fitEntry(qreal width)
{
    if (width <= m_entryWidth)
        return;
    m_entryWidth = width;
    Q_EMIT entryWidthChanged();
}

} // namespace tamble::client
