#include "fields/RComboBoxBase.h"

#include "base/PartComponents.h"
#include "base/PendingValue.h"
#include "fields/ComboEntries.h"
#include "fields/RComboBoxEntryBase.h"
#include "fields/RTextFieldBase.h"

#include <QtQmlModels/private/qqmlchangeset_p.h>
#include <QtQmlModels/private/qqmlobjectmodel_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

RComboBoxBase::RComboBoxBase(QQuickItem *parent)
    : StyledComboBox(parent)
    , m_highlight(*this)
{}

void RComboBoxBase::setValue(const QVariant &value)
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

void RComboBoxBase::setConsistent(bool consistent)
{
    if (std::exchange(m_isConsistent, consistent) == consistent)
        return;
    needMarks();
    Q_EMIT consistentChanged();
    Q_EMIT mixedChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

void RComboBoxBase::setConfirmed(bool confirmed)
{
    if (std::exchange(m_isConfirmed, confirmed) == confirmed)
        return;
    needMarks();
    Q_EMIT confirmedChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

void RComboBoxBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_isReadOnly, readOnly) == readOnly)
        return;
    if (readOnly)
        close();
    Q_EMIT readOnlyChanged();
}

QString RComboBoxBase::unknownText() const
{
    return m_unknownText.isNull() ? tr("unknown (%1)") : m_unknownText;
}

void RComboBoxBase::setUnknownText(const QString &text)
{
    if (std::exchange(m_unknownText, text) == text)
        return;
    Q_EMIT unknownTextChanged();
    Q_EMIT otherTextChanged();
}

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

bool RComboBoxBase::isEditing() const
{
    return m_isOpen || (m_field && m_field->edit()->isEdited());
}

bool RComboBoxBase::isMixed() const
{
    return !m_isConsistent && !(m_pending && m_pending->isActive());
}

QString RComboBoxBase::otherText() const
{
    if (!m_hadValue || !namesAnything(m_value))
        return m_enteredText;
    const QString text = m_value.toString();
    return isEditable() ? text : unknownText().arg(text);
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

bool RComboBoxBase::canOpen() const
{
    // A hidden item keeps the keyboard focus.
    return count() > 0 && !m_isReadOnly && isEnabled() && isVisible();
}

void RComboBoxBase::open()
{
    if (canOpen() && popup())
        popup()->open();
}

void RComboBoxBase::close()
{
    if (m_isOpen)
        popup()->close();
}

void RComboBoxBase::choose(int index)
{
    if (m_isReadOnly || !isEntryEnabled(index))
        return;
    const QPointer<RComboBoxBase> guard(this);
    close();
    if (guard)
        setCurrentIndex(index);
    if (guard)
        Q_EMIT activated(index);
}

void RComboBoxBase::editTo(int index)
{
    if (index < 0)
        return;
    const QVariant chosen = entryValue(*this, index);
    const QPointer<RComboBoxBase> guard(this);
    if (m_field)
        m_field->edit()->cancel();
    if (guard)
        pending().show(m_hadValue ? chosen : QVariant(index));
    if (guard)
        Q_EMIT valueEdited(chosen);
    if (guard)
        m_pending->commit();
}

void RComboBoxBase::onTextEntered(const QString &text)
{
    const QPointer<RComboBoxBase> guard(this);
    const int index = find(text, Qt::MatchFixedString);
    if (index >= 0) {
        choose(index);
    } else {
        m_enteredText = text;
        if (m_hadValue)
            pending().show(text);
        setCurrentIndex(-1);
        setEditText(text);
        close();
    }
    if (guard)
        Q_EMIT accepted();
    if (guard && m_pending)
        m_pending->commit();
}

// A page may write it as well; what the field has told comes from the user, or is shown already.
void RComboBoxBase::onEditTextChanged()
{
    if (m_field && m_field->text() == editText())
        return;
    m_enteredText = editText();
    Q_EMIT otherTextChanged();
}

PendingValue &RComboBoxBase::pending()
{
    if (!m_pending) {
        m_pending = new PendingValue(this);
        m_pending->setTarget(this);
        connect(m_pending, &PendingValue::activeChanged, this, &RComboBoxBase::mixedChanged);
    }
    m_pending->setName(m_hadValue ? QStringLiteral("value") : QStringLiteral("currentIndex"));
    m_pending->setSettleTime(m_settleTime);
    return *m_pending;
}

void RComboBoxBase::componentComplete()
{
    // The template takes the first entry for chosen unless an index was set. A page that waits for its device to say
    // a value has chosen none.
    if (m_isValueGiven && currentIndex() == -1)
        setCurrentIndex(-1);
    needField();
    QQuickComboBox::componentComplete();
    followValue();
}

// Nearly all boxes only show a text, which costs a third of a field.
void RComboBoxBase::needField()
{
    Q_EMIT otherTextChanged();
    if (!isEditable() || m_field)
        return;
    if (QQuickItem *field = PartComponents::makeItem(Part::ComboField, *this))
        setContentItem(field);
}

// A field has its own.
void RComboBoxBase::needMarks()
{
    if (!m_marks && !(m_isConfirmed && m_isConsistent))
        m_marks = PartComponents::makeItem(Part::ComboMarks, *this);
}

void RComboBoxBase::contentItemChange(QQuickItem *newItem, QQuickItem *oldItem)
{
    QQuickComboBox::contentItemChange(newItem, oldItem);
    if (m_field)
        m_field->disconnect(this);
    m_field = qobject_cast<RTextFieldBase *>(newItem);
    if (!m_field)
        return;
    connect(this, &QQuickComboBox::editTextChanged, this, &RComboBoxBase::onEditTextChanged, Qt::UniqueConnection);
    connect(m_field->edit(), &FieldEdit::editedChanged, this, &RComboBoxBase::editingChanged);
    connect(m_field, &QQuickTextInput::textEdited, this, &RComboBoxBase::onTextTyped);
    connect(m_field, &RTextFieldBase::valueEdited, this,
            [this](const QVariant &text) { onTextEntered(text.toString()); });
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

QString RComboBoxBase::spokenName() const
{
    return m_label.isEmpty() ? m_placeholderText : m_label;
}

QString RComboBoxBase::spokenDescription(const QString &given) const
{
    QStringList parts{given, isMixed() ? tr("mixed") : currentIndex() >= 0 ? displayText() : otherText()};
    if (!m_isConfirmed)
        parts << tr("not confirmed");
    parts << (m_isOpen ? tr("expanded") : tr("collapsed"));
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void RComboBoxBase::addSpokenStates(QAccessible::State &state) const
{
    state.readOnly = m_isReadOnly;
    state.editable = isEditable();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = m_isOpen;
    state.collapsed = !m_isOpen;
}

bool RComboBoxBase::pressBySpeech()
{
    if (m_isOpen)
        close();
    else
        open();
    return true;
}

void RComboBoxBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

} // namespace tamble::client
