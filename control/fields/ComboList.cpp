#include "fields/ComboList.h"

#include "fields/ComboEntries.h"
#include "fields/RComboBoxBase.h"

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

ComboList::ComboList(RComboBoxBase &box)
    : m_box(box)
    , m_highlight(box)
{}

bool ComboList::setOpen(bool open, int entry)
{
    if (std::exchange(m_isOpen, open) == open)
        return false;
    m_wheelAngle = 0;
    m_typesInField = false;
    m_highlight.begin(open ? entry : -1, std::exchange(m_openedByKey, false));
    Q_EMIT m_box.highlightedEntryChanged();
    return true;
}

void ComboList::follow(const QQmlChangeSet &change, bool reset)
{
    const int before = m_highlight.entry();
    m_highlight.setEntry(reset ? -1 : entryAfter(change, before));
    if (m_highlight.entry() != before)
        Q_EMIT m_box.highlightedEntryChanged();
}

template <typename Move>
void ComboList::moveHighlight(Move move)
{
    const int before = m_highlight.entry();
    move();
    if (m_highlight.entry() == before)
        return;
    Q_EMIT m_box.highlightedEntryChanged();
    Q_EMIT m_box.highlightMoved(m_highlight.entry());
    Q_EMIT m_box.highlighted(m_highlight.entry());
}

bool ComboList::takesFirst(const QEvent &event) const
{
    if (event.type() != QEvent::ShortcutOverride || !m_isOpen)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Escape || key == Qt::Key_Enter || key == Qt::Key_Return;
}

bool ComboList::handleKey(const QKeyEvent &event)
{
    return m_isOpen ? handleOpenKey(event) : handleClosedKey(event);
}

// The field has the focus; these are the list's all the same.
bool ComboList::handleFieldKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_F4:
        m_typesInField = false;
        return handleKey(event);
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return m_isOpen && !m_typesInField && handleOpenKey(event);
    case Qt::Key_Escape:
        return m_isOpen && handleOpenKey(event);
    default:
        return false;
    }
}

bool ComboList::takesRelease(const QKeyEvent &event) const
{
    return isChoosingKey(event.key()) && !m_box.isEditable() && m_box.canOpen();
}

bool ComboList::handleClosedKey(const QKeyEvent &event)
{
    const bool isArrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    const bool isChoosing = isChoosingKey(event.key()) && !m_box.isEditable();
    const bool isTyped = m_box.opensByTyping() && !m_box.isEditable() && !isChoosing && writesText(event);
    if (!(isArrow || event.key() == Qt::Key_F4 || isChoosing || isTyped) || !m_box.canOpen())
        return false;
    if (!event.isAutoRepeat() || isArrow) {
        m_openedByKey = true;
        m_box.open();
    }
    if (isTyped && m_isOpen)
        handleOpenKey(event);
    return true;
}

bool ComboList::handleOpenKey(const QKeyEvent &event)
{
    const bool isArrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if (event.key() == Qt::Key_Escape || event.key() == Qt::Key_F4 ||
        (isArrow && (event.modifiers() & Qt::AltModifier))) {
        m_box.close();
        return true;
    }
    if (moveByKey(event))
        return true;
    if (isChoosingKey(event.key()) && !(event.key() == Qt::Key_Space && m_highlight.isTyping())) {
        // Held, the key that has opened the list would choose in it.
        if (!event.isAutoRepeat())
            chooseHighlighted();
        return true;
    }
    if (m_box.isEditable() || !writesText(event))
        return false;
    moveHighlight([&] { m_highlight.type(event.text()); });
    return true;
}

bool ComboList::moveByKey(const QKeyEvent &event)
{
    const int page = std::max(1, m_box.maximumVisibleItems() - 1);
    switch (event.key()) {
    case Qt::Key_Up:
        moveHighlight([this] { m_highlight.move(-1); });
        return true;
    case Qt::Key_Down:
        moveHighlight([this] { m_highlight.move(1); });
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
        return false;
    }
}

void ComboList::chooseHighlighted()
{
    if (m_box.isEntryEnabled(m_highlight.entry()))
        m_box.choose(m_highlight.entry());
    else
        m_box.close();
}

void ComboList::onTextTyped(const QString &text)
{
    m_typesInField = true;
    if (m_isOpen)
        moveHighlight([&] { m_highlight.find(text, 0); });
}

void ComboList::turnWheel(int angle)
{
    m_wheelAngle += angle;
    const int notches = m_wheelAngle / QWheelEvent::DefaultDeltasPerStep;
    m_wheelAngle -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        moveHighlight([&] { m_highlight.move(-notches); });
}

void ComboList::pointAt(int entry, const QPointF &place)
{
    const int before = m_highlight.entry();
    m_highlight.pointAt(entry, place);
    if (m_highlight.entry() == before)
        return;
    m_typesInField = false;
    Q_EMIT m_box.highlightedEntryChanged();
}

} // namespace tamble::client
