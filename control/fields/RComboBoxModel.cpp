// What a combo box makes of its model.

#include "fields/RComboBoxBase.h"

#include "fields/ComboEntries.h"
#include "fields/RComboBoxEntryBase.h"

#include <QtQmlModels/private/qqmlchangeset_p.h>

#include <utility>

namespace tamble::client {

void RComboBoxBase::setEnabledRole(const QString &role)
{
    if (std::exchange(m_enabledRole, role) == role)
        return;
    Q_EMIT enabledRoleChanged();
    Q_EMIT entriesChanged();
}

void RComboBoxBase::setIconRole(const QString &role)
{
    if (std::exchange(m_iconRole, role) == role)
        return;
    Q_EMIT iconRoleChanged();
    Q_EMIT entriesChanged();
}

bool RComboBoxBase::isEntryEnabled(int index) const
{
    const QVariant enabled = entryData(*this, index, m_enabledRole);
    return index >= 0 && index < count() && (!enabled.isValid() || enabled.toBool());
}

QString RComboBoxBase::entryIcon(int index) const
{
    return entryData(*this, index, m_iconRole).toString();
}

QQmlInstanceModel *RComboBoxBase::entries()
{
    if (!std::exchange(m_watches, true))
        takeModel();
    return m_watchedModel;
}

// Before the list hears of another model: of each entry that is made, the box is told.
void RComboBoxBase::watchModel()
{
    if (!m_watches || m_watchedModel == delegateModel())
        return;
    takeModel();
    // Enter must not take what stands in the old entry's place.
    m_highlight.setEntry(-1);
    Q_EMIT highlightedEntryChanged();
    Q_EMIT entriesReplaced();
}

void RComboBoxBase::takeModel()
{
    if (m_watchedModel)
        m_watchedModel->disconnect(this);
    m_watchedModel = delegateModel();
    if (!m_watchedModel)
        return;
    connect(m_watchedModel, &QQmlInstanceModel::modelUpdated, this, &RComboBoxBase::onModelUpdated);
    connect(m_watchedModel, &QQmlInstanceModel::initItem, this, [this](int, QObject *item) {
        if (auto *entry = qobject_cast<RComboBoxEntryBase *>(item))
            entry->setComboBox(this);
    });
}

void RComboBoxBase::followModel()
{
    if (m_isValueGiven && !m_hadValue && isComponentComplete())
        setCurrentIndex(-1);
    if (count() == 0)
        close();
    followValue();
}

// The highlight stays at its entry, so that Enter never takes one that has just come to stand in its place.
void RComboBoxBase::onModelUpdated(const QQmlChangeSet &change, bool reset)
{
    const int before = m_highlight.entry();
    m_highlight.setEntry(reset ? -1 : entryAfter(change, before));
    if (m_highlight.entry() != before)
        Q_EMIT highlightedEntryChanged();
    Q_EMIT entriesChanged();
    if (count() == 0)
        close();
    followValueLater();
}

// A model that is filled row by row says so for each; one look at the end is enough.
void RComboBoxBase::followValueLater()
{
    if (!m_hadValue || std::exchange(m_followsLater, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_followsLater = false;
            followValue();
        },
        Qt::QueuedConnection);
}

void RComboBoxBase::followValue()
{
    if (!m_hadValue || !isComponentComplete())
        return;
    setCurrentIndex(namesAnything(m_value) ? entryWithValue(*this, m_value, currentIndex()) : -1);
    Q_EMIT otherTextChanged();
}

} // namespace tamble::client
