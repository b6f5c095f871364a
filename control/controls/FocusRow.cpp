#include "controls/FocusRow.h"

#include "controls/RButtonBase.h"

#include <QtGui/QKeyEvent>

#include <algorithm>
#include <utility>

namespace tamble::client {

FocusRow::FocusRow(QList<RButtonBase *> buttons)
    : m_buttons(std::move(buttons))
{
    const auto left = [](const RButtonBase *button) { return button->mapToScene({button->width() / 2.0, 0.0}).x(); };
    std::stable_sort(m_buttons.begin(), m_buttons.end(),
                     [left](const auto *a, const auto *b) { return left(a) < left(b); });
}

bool FocusRow::contains(const QQuickItem *item) const
{
    return std::find(m_buttons.begin(), m_buttons.end(), item) != m_buttons.end();
}

RButtonBase *FocusRow::buttonAt(int key, const QQuickItem *here, bool mirrored) const
{
    const auto place = std::find(m_buttons.begin(), m_buttons.end(), here);
    if (place == m_buttons.end())
        return nullptr;
    switch (key) {
    case Qt::Key_Left:
        return *(place == m_buttons.begin() ? place : std::prev(place));
    case Qt::Key_Right:
        return *(std::next(place) == m_buttons.end() ? place : std::next(place));
    case Qt::Key_Home:
        return mirrored ? m_buttons.last() : m_buttons.first();
    case Qt::Key_End:
        return mirrored ? m_buttons.first() : m_buttons.last();
    default:
        return nullptr;
    }
}

RButtonBase *FocusRow::selectedTab() const
{
    const auto tab = std::find_if(m_buttons.begin(), m_buttons.end(), [](const RButtonBase *button) {
        return button->isSelected() && button->spokenRole() == QAccessible::PageTab;
    });
    return tab == m_buttons.end() ? nullptr : *tab;
}

RButtonBase *FocusRow::entry(bool mirrored) const
{
    if (m_buttons.isEmpty())
        return nullptr;
    if (RButtonBase *tab = selectedTab())
        return tab;
    return mirrored ? m_buttons.last() : m_buttons.first();
}

bool FocusRow::isExit(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backtab || (event.key() == Qt::Key_Tab && event.modifiers() == Qt::NoModifier);
}

bool FocusRow::leave(QQuickItem &here, const QKeyEvent &exit) const
{
    const bool forwards = exit.key() == Qt::Key_Tab;
    QQuickItem *next = here.nextItemInFocusChain(forwards);
    while (next && next != &here && contains(next))
        next = next->nextItemInFocusChain(forwards);
    if (!next || next == &here)
        return false;
    next->forceActiveFocus(forwards ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace tamble::client
