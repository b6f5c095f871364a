#include "controls/RCheckBoxBase.h"

#include "base/PartComponents.h"

#include <QtQml/qqml.h>

#include <utility>

namespace tamble::client {

RCheckBoxBase::RCheckBoxBase(QQuickItem *parent)
    : RButtonBase(parent)
{
    setSelectable(true);
    connect(this, &RButtonBase::selectedChanged, this, &RCheckBoxBase::checkStateChanged);
    connect(this, &RButtonBase::consistentChanged, this, &RCheckBoxBase::checkStateChanged);
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
    QQmlEngine *engine = qmlEngine(this);
    if (!confirmed && !m_dot && engine) {
        const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
        m_dot = PartComponents::of(engine).make(Part::CheckDot, this, properties);
    }
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT confirmedChanged();
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
