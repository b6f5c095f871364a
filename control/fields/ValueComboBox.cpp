#include "fields/ValueComboBox.h"

#include "base/PartComponents.h"
#include "base/PendingValue.h"
#include "base/SpokenControl.h"
#include "fields/ComboEntries.h"

#include <QtQmlModels/private/qqmlchangeset_p.h>

#include <utility>

namespace tamble::client {

ValueComboBox::ValueComboBox(QQuickItem *parent)
    : StyledComboBox(parent)
{}

// The model goes when nothing of this is left.
ValueComboBox::~ValueComboBox()
{
    if (m_watchedModel)
        m_watchedModel->disconnect(this);
}

void ValueComboBox::setValue(const QVariant &value)
{
    m_isValueGiven = true;
    if (m_value == value)
        return;
    m_value = value;
    m_hadValue = m_hadValue || namesAnything(value);
    if (m_hadValue)
        entries();
    followValue();
    Q_EMIT valueChanged();
}

void ValueComboBox::setConsistent(bool consistent)
{
    if (std::exchange(m_isConsistent, consistent) == consistent)
        return;
    needMarks();
    Q_EMIT consistentChanged();
    Q_EMIT mixedChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

void ValueComboBox::setConfirmed(bool confirmed)
{
    if (std::exchange(m_isConfirmed, confirmed) == confirmed)
        return;
    needMarks();
    Q_EMIT confirmedChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

// A field has its own.
void ValueComboBox::needMarks()
{
    if (!m_marks && !(m_isConfirmed && m_isConsistent))
        m_marks = PartComponents::makeItem(Part::ComboMarks, *this);
}

QString ValueComboBox::unknownText() const
{
    return m_unknownText.isNull() ? tr("unknown (%1)") : m_unknownText;
}

void ValueComboBox::setUnknownText(const QString &text)
{
    if (std::exchange(m_unknownText, text) == text)
        return;
    Q_EMIT unknownTextChanged();
    Q_EMIT otherTextChanged();
}

bool ValueComboBox::isMixed() const
{
    return !m_isConsistent && !(m_pending && m_pending->isActive());
}

QString ValueComboBox::otherText() const
{
    if (!m_hadValue || !namesAnything(m_value))
        return m_enteredText;
    const QString text = m_value.toString();
    return isEditable() ? text : unknownText().arg(text);
}

PendingValue &ValueComboBox::pending()
{
    if (!m_pending) {
        m_pending = new PendingValue(this);
        m_pending->setTarget(this);
        connect(m_pending, &PendingValue::activeChanged, this, &ValueComboBox::mixedChanged);
    }
    m_pending->setName(m_hadValue ? QStringLiteral("value") : QStringLiteral("currentIndex"));
    m_pending->setSettleTime(m_settleTime);
    return *m_pending;
}

void ValueComboBox::tellChoice(int index, const QVariant &value)
{
    const QPointer<ValueComboBox> guard(this);
    pending().show(m_hadValue ? value : QVariant(index));
    if (guard)
        Q_EMIT valueEdited(value);
    if (guard)
        m_pending->commit();
}

void ValueComboBox::showEntered(const QString &text)
{
    m_enteredText = text;
    if (m_hadValue)
        pending().show(text);
    setCurrentIndex(-1);
    setEditText(text);
}

void ValueComboBox::commitEntered()
{
    if (m_pending)
        m_pending->commit();
}

void ValueComboBox::setEnteredText(const QString &text)
{
    m_enteredText = text;
    Q_EMIT otherTextChanged();
}

void ValueComboBox::componentComplete()
{
    // The template takes the first entry for chosen unless an index was set. A page that waits for its device to say
    // a value has chosen none.
    if (m_isValueGiven && currentIndex() == -1)
        setCurrentIndex(-1);
    QQuickComboBox::componentComplete();
    followValue();
}

void ValueComboBox::setEnabledRole(const QString &role)
{
    if (std::exchange(m_enabledRole, role) == role)
        return;
    Q_EMIT enabledRoleChanged();
    Q_EMIT entriesChanged();
}

void ValueComboBox::setIconRole(const QString &role)
{
    if (std::exchange(m_iconRole, role) == role)
        return;
    Q_EMIT iconRoleChanged();
    Q_EMIT entriesChanged();
}

bool ValueComboBox::isEntryEnabled(int index) const
{
    const QVariant enabled = entryData(*this, index, m_enabledRole);
    return index >= 0 && index < count() && (!enabled.isValid() || enabled.toBool());
}

QString ValueComboBox::entryIcon(int index) const
{
    return entryData(*this, index, m_iconRole).toString();
}

QQmlInstanceModel *ValueComboBox::entries()
{
    if (!std::exchange(m_watches, true))
        takeModel();
    return m_watchedModel;
}

// Before the list hears of another model: of each entry that is made, the box is told.
void ValueComboBox::watchModel()
{
    if (!m_watches || m_watchedModel == delegateModel())
        return;
    takeModel();
    entriesChange(QQmlChangeSet(), true);
    Q_EMIT entriesReplaced();
}

void ValueComboBox::takeModel()
{
    if (m_watchedModel)
        m_watchedModel->disconnect(this);
    m_watchedModel = delegateModel();
    if (!m_watchedModel)
        return;
    connect(m_watchedModel, &QQmlInstanceModel::modelUpdated, this, &ValueComboBox::onModelUpdated);
    connect(m_watchedModel, &QQmlInstanceModel::initItem, this, [this](int, QObject *entry) { entryCreation(entry); });
}

void ValueComboBox::followModel()
{
    if (m_isValueGiven && !m_hadValue && isComponentComplete())
        setCurrentIndex(-1);
    followValue();
}

void ValueComboBox::onModelUpdated(const QQmlChangeSet &change, bool reset)
{
    entriesChange(change, reset);
    Q_EMIT entriesChanged();
    followValueLater();
}

// A model that is filled row by row says so for each; one look at the end is enough.
void ValueComboBox::followValueLater()
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

void ValueComboBox::followValue()
{
    if (!m_hadValue || !isComponentComplete())
        return;
    setCurrentIndex(namesAnything(m_value) ? entryWithValue(*this, m_value, currentIndex()) : -1);
    Q_EMIT otherTextChanged();
}

} // namespace tamble::client
