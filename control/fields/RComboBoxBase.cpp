#include "fields/RComboBoxBase.h"

#include "base/PartComponents.h"
#include "fields/ComboEntries.h"
#include "fields/RComboBoxEntryBase.h"
#include "fields/RTextFieldBase.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include <utility>

namespace tamble::client {

RComboBoxBase::RComboBoxBase(QQuickItem *parent)
    : ValueComboBox(parent)
    , m_list(*this)
{}

// The field loses the focus when nothing of this is left.
RComboBoxBase::~RComboBoxBase()
{
    if (m_field)
        m_field->edit()->setEditor(nullptr);
}

void RComboBoxBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_isReadOnly, readOnly) == readOnly)
        return;
    if (readOnly)
        close();
    Q_EMIT readOnlyChanged();
}

bool RComboBoxBase::isEditing() const
{
    return m_list.isOpen() || (m_field && m_field->edit()->isEdited());
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
    if (m_list.isOpen())
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
        tellChoice(index, chosen);
}

void RComboBoxBase::onTextEntered(const QString &text)
{
    const QPointer<RComboBoxBase> guard(this);
    const int index = find(text, Qt::MatchFixedString);
    if (index >= 0) {
        choose(index);
    } else {
        showEntered(text);
        close();
    }
    if (guard)
        Q_EMIT accepted();
    if (guard)
        commitEntered();
}

// A page may write it as well; what the field has told comes from the user, or is shown already.
void RComboBoxBase::onEditTextChanged()
{
    if (m_field && m_field->text() == editText())
        return;
    setEnteredText(editText());
}

void RComboBoxBase::componentComplete()
{
    needField();
    ValueComboBox::componentComplete();
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

void RComboBoxBase::contentItemChange(QQuickItem *newItem, QQuickItem *oldItem)
{
    ValueComboBox::contentItemChange(newItem, oldItem);
    if (m_field)
        m_field->disconnect(this);
    m_field = qobject_cast<RTextFieldBase *>(newItem);
    if (!m_field)
        return;
    connect(this, &QQuickComboBox::editTextChanged, this, &RComboBoxBase::onEditTextChanged, Qt::UniqueConnection);
    connect(m_field->edit(), &FieldEdit::editedChanged, this, &RComboBoxBase::editingChanged);
    connect(m_field, &QQuickTextInput::textEdited, this, [this] { m_list.onTextTyped(m_field->text()); });
    connect(m_field, &RTextFieldBase::valueEdited, this,
            [this](const QVariant &text) { onTextEntered(text.toString()); });
}

void RComboBoxBase::followModel()
{
    if (count() == 0)
        close();
    ValueComboBox::followModel();
}

void RComboBoxBase::entryCreation(QObject *entry)
{
    if (auto *made = qobject_cast<RComboBoxEntryBase *>(entry))
        made->setComboBox(this);
}

void RComboBoxBase::entriesChange(const QQmlChangeSet &change, bool reset)
{
    m_list.follow(change, reset);
    if (count() == 0)
        close();
}

void RComboBoxBase::onListVisible(bool visible)
{
    if (!m_list.setOpen(visible, isMixed() ? -1 : currentIndex()))
        return;
    Q_EMIT editingChanged();
    announce(*this, QAccessible::DescriptionChanged);
}

void RComboBoxBase::fitEntry(qreal width)
{
    if (width <= m_entryWidth)
        return;
    m_entryWidth = width;
    Q_EMIT entryWidthChanged();
}

bool RComboBoxBase::event(QEvent *event)
{
    if (!m_list.takesFirst(*event))
        return ValueComboBox::event(event);
    event->accept();
    return true;
}

bool RComboBoxBase::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_field && m_list.takesFirst(*event)) {
        event->accept();
        return true;
    }
    const bool isKey = object == m_field && event->type() == QEvent::KeyPress;
    return (isKey && m_list.handleFieldKey(*static_cast<QKeyEvent *>(event))) ||
           ValueComboBox::eventFilter(object, event);
}

// In place of the template, whose keys choose at once.
void RComboBoxBase::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(m_list.handleKey(*event));
}

void RComboBoxBase::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(m_list.takesRelease(*event));
}

// In place of the template, which chooses while the list is closed.
void RComboBoxBase::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_list.isOpen());
    if (m_list.isOpen())
        m_list.turnWheel(event->angleDelta().y());
}

QString RComboBoxBase::spokenName() const
{
    return m_label.isEmpty() ? m_placeholderText : m_label;
}

QString RComboBoxBase::spokenDescription(const QString &given) const
{
    QStringList parts{given, isMixed() ? tr("mixed") : currentIndex() >= 0 ? displayText() : otherText()};
    if (!isConfirmed())
        parts << tr("not confirmed");
    parts << (m_list.isOpen() ? tr("expanded") : tr("collapsed"));
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void RComboBoxBase::addSpokenStates(QAccessible::State &state) const
{
    state.readOnly = m_isReadOnly;
    state.editable = isEditable();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = m_list.isOpen();
    state.collapsed = !m_list.isOpen();
}

bool RComboBoxBase::pressBySpeech()
{
    if (m_list.isOpen())
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
