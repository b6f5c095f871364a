#include "fields/RComboBoxBase.h"

#include "base/PartComponents.h"
#include "base/PendingValue.h"
#include "fields/ComboEntries.h"
#include "fields/RTextFieldBase.h"

#include <QtQmlModels/private/qqmlobjectmodel_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

RComboBoxBase::RComboBoxBase(QQuickItem *parent)
    : StyledComboBox(parent)
    , m_highlight(*this)
{}

// The field loses the focus, and the model goes, when nothing of this is left.
RComboBoxBase::~RComboBoxBase()
{
    if (m_watchedModel)
        m_watchedModel->disconnect(this);
    if (m_field)
        m_field->edit()->setEditor(nullptr);
}

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

QString RComboBoxBase::chooseText(const QString &text)
{
    const int index = find(text, Qt::MatchFixedString);
    if (index < 0)
        return tr("There is no such entry");
    if (m_isReadOnly || !isEntryEnabled(index))
        return tr("This entry cannot be chosen now");
    choose(index);
    return {};
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
