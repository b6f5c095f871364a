#include "lists/RListRowBase.h"

#include "lists/RListViewBase.h"

#include <utility>

namespace tamble::client {

RListRowBase::RListRowBase(QQuickItem *parent)
    : QQuickText(parent)
{}

RListViewBase *RListRowBase::list() const
{
    return m_list;
}

void RListRowBase::setList(RListViewBase *list)
{
    if (m_list == list)
        return;
    m_list = list;
    Q_EMIT listChanged();
}

void RListRowBase::setSelected(bool selected)
{
    if (std::exchange(m_isSelected, selected) == selected)
        return;
    QAccessible::State changed;
    changed.selected = true;
    announceStates(*this, changed);
    Q_EMIT selectedChanged();
}

void RListRowBase::setHovered(bool hovered)
{
    if (std::exchange(m_isHovered, hovered) != hovered)
        Q_EMIT hoveredChanged();
}

void RListRowBase::addSpokenStates(QAccessible::State &state) const
{
    state.focusable = true;
    state.selectable = m_list && m_list->selectionMode() != RListViewBase::None;
    state.multiSelectable = m_list && m_list->selectionMode() == RListViewBase::Multiple;
    state.selected = m_isSelected;
}

bool RListRowBase::pressBySpeech()
{
    if (m_list)
        m_list->press(*this);
    return true;
}

} // namespace tamble::client
