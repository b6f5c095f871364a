#include "controls/RCheckBoxBase.h"

#include "base/PartComponents.h"

#include <utility>

namespace tamble::client {

RCheckBoxBase::RCheckBoxBase(QQuickItem *parent)
    : RButtonBase(parent)
{
    setSelectable(true);
}

Qt::CheckState RCheckBoxBase::checkState() const
{
    if (!isConsistent())
        return Qt::PartiallyChecked;
    return isSelected() ? Qt::Checked : Qt::Unchecked;
}

void RCheckBoxBase::setConfirmed(bool confirmed)
{
    if (std::exchange(m_confirmed, confirmed) == confirmed)
        return;
    if (!confirmed && !m_dot)
        m_dot = PartComponents::makeItem(Part::CheckDot, *this);
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT confirmedChanged();
}

void RCheckBoxBase::setFocusVisible(bool visible)
{
    if (std::exchange(m_focusVisible, visible) == visible)
        return;
    PartComponents::show(m_focusFrame, Part::FocusFrame, *this, visible);
    Q_EMIT focusVisibleChanged();
}

void RCheckBoxBase::selectionChange()
{
    if (checkState() != Qt::Unchecked && !m_icon)
        m_icon = PartComponents::makeItem(Part::CheckIcon, *this);
    Q_EMIT checkStateChanged();
}

void RCheckBoxBase::editSelection(bool selected)
{
    if (!m_readOnly)
        RButtonBase::editSelection(selected);
}

QString RCheckBoxBase::spokenDescription(const QString &given) const
{
    QStringList parts{RButtonBase::spokenDescription(given)};
    if (!m_confirmed)
        parts << tr("not confirmed");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void RCheckBoxBase::addSpokenStates(QAccessible::State &state) const
{
    RButtonBase::addSpokenStates(state);
    state.readOnly = m_readOnly;
}

} // namespace tamble::client
