#include "fields/FieldEdit.h"

#include "base/PendingValue.h"
#include "fields/FieldParts.h"
#include "fields/FieldReason.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QValidator>

#include <typeinfo>
#include <utility>

namespace tamble::client {

FieldEdit::FieldEdit(QObject *parent)
    : FieldSettings(parent)
    , m_gestures(*this)
{}

FieldEdit::~FieldEdit() = default;

QQuickItem *FieldEdit::editor() const
{
    return m_editor ? &m_editor->item() : nullptr;
}

void FieldEdit::setEditor(QQuickItem *editor)
{
    if (this->editor() == editor)
        return;
    if (m_editor) {
        m_editor->item().removeEventFilter(this);
        m_editor->item().disconnect(this);
    }
    m_editor = EditedText::of(editor);
    if (m_editor) {
        editor->installEventFilter(this);
        editor->setFlag(QQuickItem::ItemAcceptsDrops);
        editor->setAcceptedMouseButtons(editor->acceptedMouseButtons() | Qt::RightButton);
        m_editor->onTextChanged(*this, [this] { onTextChanged(); });
        m_editor->onValidatorChanged(*this, [this] { onValidatorChanged(); });
        connect(editor, &QObject::destroyed, this, [this] { m_editor.reset(); });
        onValidatorChanged();
    }
    showValue();
    Q_EMIT editorChanged();
}

void FieldEdit::componentComplete()
{
    m_isComplete = true;
    if (m_editor)
        m_plainText = m_editor->text();
    showValue();
    judge();
    updateMarks();
}

void FieldEdit::setValue(const QVariant &value)
{
    // Of equal texts and numbers the type may differ, which NaN never equals.
    if (m_value == value && m_value.isValid() == value.isValid())
        return;
    m_value = value;
    if (m_isEdited) {
        const bool tellsText = m_editor && !m_editor->hidesText();
        notice(tellsText ? tr("Changed meanwhile to %1").arg(textOfValue()) : tr("Changed meanwhile"));
        m_valueWaits = true;
        Q_EMIT valueWaits();
    }
    showValue();
    Q_EMIT valueChanged();
}

void FieldEdit::setErrorText(const QString &text)
{
    m_errorCounts = true;
    const bool changed = std::exchange(m_errorText, text) != text;
    judge();
    if (changed)
        Q_EMIT errorTextChanged();
}

bool FieldEdit::enter()
{
    const QString typed = this->text();
    const QString text = tidied(typed);
    const QString problem = problemOfEditing();
    if (!isAcceptable() || !problem.isEmpty()) {
        if (!problem.isEmpty())
            notice(problem);
        Q_EMIT rejected(text, problem.isEmpty() ? m_invalidText : problem);
        return false;
    }
    const QVariant value = valueOf(text);
    const QPointer<FieldEdit> guard(this);
    setEdited(false);
    if (guard && text != typed && text == typed.trimmed())
        notice(tr("Blanks at the ends were removed"));
    if (guard)
        show(value);
    if (guard)
        commit();
    return true;
}

QString FieldEdit::enterText(const QString &text)
{
    if (const QString problem = problemOfEditing(); !problem.isEmpty())
        return problem;
    // An error that the page found is about the text before.
    const bool errorCounted = std::exchange(m_errorCounts, false);
    const QString problem = problemOf(tidied(text));
    if (!problem.isEmpty()) {
        m_errorCounts = errorCounted;
        return problem;
    }
    const QString before = this->text();
    setText(text);
    if (this->text() != text) {
        setText(before);
        return tr("This has no room here");
    }
    enter();
    return {};
}

void FieldEdit::cancel()
{
    if (!m_isEdited)
        return;
    setEdited(false);
    notice({});
    showValue();
    Q_EMIT canceled();
}

QString FieldEdit::text() const
{
    return m_editor ? m_editor->text() : QString();
}

bool FieldEdit::canEdit() const
{
    return m_editor && !m_editor->isReadOnly() && m_editor->item().isEnabled();
}

void FieldEdit::show(const QVariant &value, bool tells)
{
    const QPointer<FieldEdit> guard(this);
    m_shown = value;
    if (m_value.isValid()) {
        pending().show(value);
    } else {
        m_plainText = value.isValid() ? textOf(value) : QString();
        setText(m_plainText);
    }
    if (guard && tells)
        Q_EMIT valueEdited(value);
}

void FieldEdit::commit(bool tells)
{
    const QPointer<FieldEdit> guard(this);
    if (tells)
        Q_EMIT valueEdited(m_shown);
    if (guard)
        Q_EMIT valueCommitted(m_shown);
    if (guard && m_pending)
        m_pending->commit();
}

void FieldEdit::notice(const QString &text)
{
    m_noticeText = text;
    updateBubble();
}

void FieldEdit::paste(const QString &text, int begin, int end)
{
    static const QRegularExpression lineBreak(QStringLiteral("\\r\\n|[\\r\\n]"));
    QString pasted = text;
    if (!m_editor->hasManyLines())
        pasted.replace(lineBreak, QStringLiteral(" "));
    QString wanted = m_editor->text().replace(begin, end - begin, pasted);
    int caret = begin;
    const QValidator *validator = this->validator();
    if (validator && validator->validate(wanted, caret) == QValidator::Invalid) {
        noticeRefusal(wanted);
        return;
    }
    m_editor->remove(begin, end);
    m_editor->insert(begin, pasted);
}

void FieldEdit::noticeRefusal(const QString &wanted)
{
    const QString problem = FieldReason::problemOf(validator(), wanted);
    if (!problem.isEmpty())
        notice(problem);
}

bool FieldEdit::isGoing() const
{
    // Nothing of it but the item is left then.
    const QQuickItem *field = m_field;
    return field && typeid(*field) == typeid(QQuickItem);
}

bool FieldEdit::eventFilter(QObject *editor, QEvent *event)
{
    if (isGoing())
        return false;
    const QPointer<FieldEdit> guard(this);
    if (m_editor && editor == &m_editor->item() && m_gestures.handle(*m_editor, *event))
        return true;
    if (!guard)
        return true;
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        updateBubble();
    return false;
}

void FieldEdit::timerEvent(QTimerEvent *event)
{
    if (m_editor)
        m_gestures.onTimer(*m_editor, *event);
}

void FieldEdit::onTextChanged()
{
    if (!m_isShowing && m_editor) {
        // A page that writes into a field which nobody types into means the text of a plain one.
        if (!m_editor->item().hasActiveFocus()) {
            if (!m_isEdited && isConsistent())
                m_plainText = m_editor->text();
        } else {
            m_noticeText.clear();
            m_errorCounts = false;
            keepWithinBytes();
            // What is typed may come to equal a value that waits, and stays the user's when that changes again.
            setEdited(m_valueWaits || m_editor->text() != textOfValue());
        }
    }
    judge();
    m_textBefore = m_editor ? m_editor->text() : QString();
}

void FieldEdit::onValidatorChanged()
{
    if (m_watchedValidator)
        m_watchedValidator->disconnect(this);
    m_watchedValidator = validator();
    if (m_watchedValidator)
        connect(m_watchedValidator, &QValidator::changed, this, &FieldEdit::judge);
    judge();
}

void FieldEdit::keepWithinBytes()
{
    const int caret = m_editor->caret();
    const int end = limits().endWithinBytes(m_editor->text(), m_textBefore, caret);
    if (end == caret)
        return;
    const bool wasShowing = std::exchange(m_isShowing, true);
    m_editor->remove(end, caret);
    m_isShowing = wasShowing;
    notice(tr("Cut to %n bytes", nullptr, limits().maximumBytes));
}

void FieldEdit::judge()
{
    if (!m_isComplete || !m_editor)
        return;
    const bool isMixed = !isConsistent() && !m_isEdited;
    const QString found = isMixed ? errorInForce() : problemOf(tidied(m_editor->text()));
    if (std::exchange(m_invalidText, found) != found) {
        updateMarks();
        Q_EMIT invalidTextChanged();
    }
    updateBubble();
}

// A page may lock a field while something is typed into it.
QString FieldEdit::problemOfEditing() const
{
    return canEdit() ? QString() : tr("This cannot be edited");
}

QString FieldEdit::errorInForce() const
{
    return m_errorCounts ? m_errorText : QString();
}

QString FieldEdit::problemOf(const QString &text) const
{
    const QString error = errorInForce();
    if (!error.isEmpty())
        return error;
    return FieldSettings::problemOf(text, validator(), m_isEdited);
}

QString FieldEdit::tidied(const QString &text) const
{
    return FieldSettings::tidied(text, validator());
}

const QValidator *FieldEdit::validator() const
{
    return m_editor ? m_editor->validator() : nullptr;
}

QString FieldEdit::textOfValue() const
{
    if (!isConsistent() && !(m_pending && m_pending->isActive()))
        return {};
    return m_value.isValid() ? textOf(m_value) : m_plainText;
}

void FieldEdit::showValue()
{
    if (!m_isEdited && m_isComplete && m_editor)
        setText(textOfValue());
}

void FieldEdit::setText(const QString &text)
{
    const QPointer<FieldEdit> guard(this);
    const bool wasShowing = std::exchange(m_isShowing, true);
    m_editor->setText(text);
    if (guard)
        m_isShowing = wasShowing;
}

void FieldEdit::setEdited(bool edited)
{
    if (std::exchange(m_isEdited, edited) == edited)
        return;
    m_valueWaits = false;
    updateMarks();
    Q_EMIT editedChanged();
}

void FieldEdit::updateMarks()
{
    const bool isMarked = m_isEdited || !isConfirmed() || !isConsistent() || !m_invalidText.isEmpty();
    if (m_isComplete)
        Q_EMIT lookChanged();
    if (!m_isComplete || std::exchange(m_isMarked, isMarked) == isMarked)
        return;
    if (isMarked && !m_marks && m_field)
        m_marks = makeFieldPart(Part::FieldMarks, *m_field, this);
    Q_EMIT markedChanged();
}

// A field that nobody has touched is not scolded, though it may be marked.
void FieldEdit::updateBubble()
{
    QString text;
    if (m_editor && m_editor->item().hasActiveFocus()) {
        const bool tellsReason = m_isEdited || !errorInForce().isEmpty();
        text = m_noticeText.isEmpty() && tellsReason ? m_invalidText : m_noticeText;
    }
    if (std::exchange(m_bubbleText, text) == text)
        return;
    if (!text.isEmpty() && !m_bubble && m_field)
        m_bubble = makeFieldPart(Part::FieldBubble, *m_field, this);
    Q_EMIT bubbleTextChanged();
}

QString FieldEdit::description(const QString &given) const
{
    QStringList parts;
    const auto add = [&parts](bool holds, const QString &part) {
        if (holds && !part.isEmpty())
            parts.append(part);
    };
    add(true, given);
    add(!isConsistent(), tr("mixed"));
    add(m_isEdited, tr("not entered"));
    add(!isConfirmed(), tr("not confirmed"));
    add(!isAcceptable(), tr("invalid: %1").arg(m_invalidText));
    return parts.join(QStringLiteral(", "));
}

PendingValue &FieldEdit::pending()
{
    if (!m_pending) {
        m_pending = new PendingValue(this, QStringLiteral("value"));
        connect(m_pending, &PendingValue::activeChanged, this, &FieldEdit::showValue);
    }
    m_pending->setSettleTime(settleTime());
    return *m_pending;
}

} // namespace tamble::client
