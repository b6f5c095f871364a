#include "fields/RComboBoxEntryBase.h"

#include "base/PartComponents.h"
#include "fields/RComboBoxBase.h"

#include <utility>

namespace tamble::client {

RComboBoxEntryBase::RComboBoxEntryBase(QQuickItem *parent)
    : QQuickAbstractButton(parent)
{
    connect(this, &QQuickItem::implicitWidthChanged, this, &RComboBoxEntryBase::tellWidth);
}

void RComboBoxEntryBase::setIndex(int index)
{
    if (std::exchange(m_index, index) == index)
        return;
    readEntry();
    readMarks();
}

void RComboBoxEntryBase::setComboBox(RComboBoxBase *box)
{
    m_comboBox = box;
    connect(box, &RComboBoxBase::entriesChanged, this, &RComboBoxEntryBase::readEntry);
    connect(box, &RComboBoxBase::highlightedEntryChanged, this, &RComboBoxEntryBase::readMarks);
    connect(box, &RComboBoxBase::mixedChanged, this, &RComboBoxEntryBase::readMarks);
    connect(box, &QQuickComboBox::currentIndexChanged, this, &RComboBoxEntryBase::readMarks);
    Q_EMIT comboBoxChanged();
    readEntry();
    readMarks();
}

void RComboBoxEntryBase::readEntry()
{
    if (!m_comboBox || m_index < 0)
        return;
    m_entryText = m_comboBox->textAt(m_index);
    m_entryIcon = m_comboBox->entryIcon(m_index);
    setEnabled(m_comboBox->isEntryEnabled(m_index));
    if (!m_icon && !m_entryIcon.isEmpty())
        m_icon = PartComponents::makeItem(Part::EntryIcon, *this);
    Q_EMIT entryChanged();
}

void RComboBoxEntryBase::readMarks()
{
    if (!m_comboBox || m_index < 0)
        return;
    const bool isCurrent = !m_comboBox->isMixed() && m_comboBox->currentIndex() == m_index;
    const bool isHighlighted = m_comboBox->highlightedEntry() == m_index;
    const bool wasCurrent = std::exchange(m_isCurrent, isCurrent);
    const bool wasHighlighted = std::exchange(m_isHighlighted, isHighlighted);
    if (wasCurrent != isCurrent || wasHighlighted != isHighlighted)
        Q_EMIT marksChanged();
}

void RComboBoxEntryBase::tellWidth()
{
    if (m_comboBox)
        m_comboBox->fitEntry(implicitWidth());
}

void RComboBoxEntryBase::addSpokenStates(QAccessible::State &state) const
{
    state.selectable = true;
    state.selected = m_isCurrent;
}

bool RComboBoxEntryBase::pressBySpeech()
{
    if (m_comboBox)
        m_comboBox->choose(m_index);
    return true;
}

void RComboBoxEntryBase::hoverEnterEvent(QHoverEvent *event)
{
    QQuickAbstractButton::hoverEnterEvent(event);
    if (m_comboBox)
        m_comboBox->pointAt(m_index, event->scenePosition());
}

void RComboBoxEntryBase::hoverMoveEvent(QHoverEvent *event)
{
    QQuickAbstractButton::hoverMoveEvent(event);
    if (m_comboBox)
        m_comboBox->pointAt(m_index, event->scenePosition());
}

void RComboBoxEntryBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

} // namespace tamble::client
