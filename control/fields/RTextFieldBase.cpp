#include "fields/RTextFieldBase.h"

#include "base/PendingValue.h"
#include "fields/FieldReason.h"

#include <tambleclient-common/RValueConverter.h>

#include <QtCore/QTextBoundaryFinder>
#include <QtGui/QKeyEvent>
#include <QtGui/QValidator>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
}

/// Where the last character before a position begins; a character may be several code points.
int characterBefore(const QString &text, int position)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(position);
    return std::max(0, int(finder.toPreviousBoundary()));
}

/// Leaving for another window or a popup is no end of typing.
bool staysWithTheUser(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

RTextFieldBase::RTextFieldBase(QQuickItem *parent)
    : QQuickTextField(parent)
{
    connect(this, &QQuickTextInput::textChanged, this, &RTextFieldBase::onTextChanged);
    connect(this, &QQuickTextInput::textEdited, this, &RTextFieldBase::onTextEdited);
    connect(this, &QQuickTextInput::validatorChanged, this, &RTextFieldBase::onValidatorChanged);
}

void RTextFieldBase::setValue(const QVariant &value)
{
    if (m_value == value)
        return;
    m_value = value;
    if (m_isEdited)
        Q_EMIT valueWaits();
    showValue();
    Q_EMIT valueChanged();
}

void RTextFieldBase::setErrorText(const QString &text)
{
    m_errorCounts = true;
    const bool changed = std::exchange(m_errorText, text) != text;
    judge();
    if (changed)
        Q_EMIT errorTextChanged();
}

void RTextFieldBase::setRequired(bool required)
{
    if (std::exchange(m_isRequired, required) == required)
        return;
    judge();
    Q_EMIT requiredChanged();
}

void RTextFieldBase::setMaximumBytes(int bytes)
{
    if (std::exchange(m_maximumBytes, bytes) == bytes)
        return;
    judge();
    Q_EMIT maximumBytesChanged();
}

void RTextFieldBase::setConsistent(bool consistent)
{
    if (std::exchange(m_isConsistent, consistent) == consistent)
        return;
    showValue();
    judge();
    Q_EMIT consistentChanged();
}

void RTextFieldBase::setConverter(RValueConverter *converter)
{
    if (m_converter == converter)
        return;
    if (m_converter)
        m_converter->disconnect(this);
    m_converter = converter;
    // Its own value is not used, but its text changes with all of its settings.
    if (converter)
        connect(converter, &RValueConverter::displayTextChanged, this, &RTextFieldBase::showValue);
    showValue();
    judge();
    Q_EMIT converterChanged();
}

bool RTextFieldBase::enter()
{
    const QString entered = tidied(text());
    if (!isAcceptable()) {
        Q_EMIT rejected(entered, m_invalidText);
        return false;
    }
    const QVariant value = m_converter ? m_converter->fromText(entered) : QVariant(entered);
    const QPointer<RTextFieldBase> guard(this);
    setEdited(false);
    m_plainText = entered;
    if (m_value.isValid())
        pending().show(value);
    else
        setText(entered);
    Q_EMIT valueEdited(value);
    if (guard)
        Q_EMIT valueCommitted(value);
    if (guard && m_pending)
        m_pending->commit();
    return true;
}

QString RTextFieldBase::enterText(const QString &text)
{
    if (isReadOnly() || !isEnabled())
        return tr("This cannot be edited");
    if (text.size() > maxLength())
        return tr("At most %n characters", nullptr, maxLength());
    // An error that the page found is about the text before.
    const bool errorCounted = std::exchange(m_errorCounts, false);
    const QString problem = problemOf(tidied(text));
    m_errorCounts = errorCounted && !problem.isEmpty();
    if (!problem.isEmpty())
        return problem;
    setText(text);
    judge();
    enter();
    return {};
}

void RTextFieldBase::cancel()
{
    if (!m_isEdited)
        return;
    setEdited(false);
    showValue();
    Q_EMIT editCanceled();
}

bool RTextFieldBase::event(QEvent *event)
{
    // Before whatever Esc or Enter do around the field.
    if (event->type() == QEvent::ShortcutOverride && m_isEdited) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (key.key() == Qt::Key_Escape || isEnter(key)) {
            event->accept();
            return true;
        }
    }
    return QQuickTextField::event(event);
}

void RTextFieldBase::keyPressEvent(QKeyEvent *event)
{
    const bool enters = isEnter(*event);
    if (!enters && event->key() != Qt::Key_Escape) {
        QQuickTextField::keyPressEvent(event);
        return;
    }
    event->setAccepted(m_isEdited);
    if (!m_isEdited)
        return;
    const QPointer<RTextFieldBase> guard(this);
    if (!enters)
        cancel();
    else if (enter() && guard)
        selectAll();
}

void RTextFieldBase::focusInEvent(QFocusEvent *event)
{
    QQuickTextField::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        selectAll();
}

void RTextFieldBase::focusOutEvent(QFocusEvent *event)
{
    const QPointer<RTextFieldBase> guard(this);
    QQuickTextField::focusOutEvent(event);
    if (!guard || !m_isEdited || !m_commitOnFocusLoss || staysWithTheUser(event->reason()))
        return;
    if (isAcceptable())
        enter();
    else
        cancel();
}

void RTextFieldBase::mousePressEvent(QMouseEvent *event)
{
    m_focusedByPress = !hasActiveFocus();
    QQuickTextField::mousePressEvent(event);
}

void RTextFieldBase::mouseReleaseEvent(QMouseEvent *event)
{
    QQuickTextField::mouseReleaseEvent(event);
    if (std::exchange(m_focusedByPress, false) && hasActiveFocus() && selectedText().isEmpty())
        selectAll();
}

void RTextFieldBase::componentComplete()
{
    QQuickTextField::componentComplete();
    showValue();
    judge();
}

void RTextFieldBase::onTextChanged()
{
    if (!m_isEdited && m_isConsistent && !hasActiveFocus())
        m_plainText = text();
    judge();
    m_textBefore = text();
}

void RTextFieldBase::onTextEdited()
{
    m_errorCounts = false;
    keepWithinBytes();
    setEdited(text() != textOfValue());
    judge();
}

void RTextFieldBase::onValidatorChanged()
{
    if (m_watchedValidator)
        m_watchedValidator->disconnect(this);
    m_watchedValidator = validator();
    if (m_watchedValidator)
        connect(m_watchedValidator, &QValidator::changed, this, &RTextFieldBase::judge);
    judge();
}

void RTextFieldBase::keepWithinBytes()
{
    if (m_maximumBytes <= 0)
        return;
    // From the end of what was typed or pasted just now, never from what was there before.
    const QString now = text();
    const auto kept = std::ranges::mismatch(now, m_textBefore).in1;
    const auto begin = kept - now.begin();
    int cut = cursorPosition();
    qsizetype bytes = now.toUtf8().size();
    while (bytes > m_maximumBytes && cut > begin) {
        const int character = characterBefore(now, cut);
        bytes -= now.mid(character, cut - character).toUtf8().size();
        cut = character;
    }
    if (cut < cursorPosition())
        remove(cut, cursorPosition());
}

void RTextFieldBase::judge()
{
    const bool isMixed = !m_isConsistent && !m_isEdited;
    const QString found = isMixed ? QString() : problemOf(tidied(text()));
    if (std::exchange(m_invalidText, found) != found)
        Q_EMIT invalidTextChanged();
}

QString RTextFieldBase::problemOf(const QString &text) const
{
    if (m_errorCounts && !m_errorText.isEmpty())
        return m_errorText;
    if (text.isEmpty())
        return m_isRequired ? tr("This must be filled in") : QString();
    if (m_maximumBytes > 0 && text.toUtf8().size() > m_maximumBytes)
        return tr("At most %n bytes", nullptr, m_maximumBytes);
    if (m_converter && !m_converter->accepts(text))
        return tr("This cannot be read");
    QString checked = text;
    int cursor = 0;
    if (!validator() || validator()->validate(checked, cursor) == QValidator::Acceptable)
        return {};
    const QString message = FieldReason::of(validator(), text);
    return message.isEmpty() ? tr("This is not valid") : message;
}

QString RTextFieldBase::tidied(const QString &text) const
{
    QString tidy = text;
    if (m_trim && validator())
        validator()->fixup(tidy);
    return m_trim ? tidy.trimmed() : tidy;
}

QString RTextFieldBase::textOfValue() const
{
    if (!m_isConsistent && !(m_pending && m_pending->isActive()))
        return {};
    if (!m_value.isValid())
        return m_plainText;
    return m_converter ? m_converter->toText(m_value) : m_value.toString();
}

void RTextFieldBase::showValue()
{
    if (!m_isEdited && isComponentComplete())
        setText(textOfValue());
}

void RTextFieldBase::setEdited(bool edited)
{
    if (std::exchange(m_isEdited, edited) != edited)
        Q_EMIT editedChanged();
}

PendingValue &RTextFieldBase::pending()
{
    if (!m_pending) {
        m_pending = new PendingValue(this, QStringLiteral("value"));
        connect(m_pending, &PendingValue::activeChanged, this, &RTextFieldBase::showValue);
    }
    m_pending->setSettleTime(m_settleTime);
    return *m_pending;
}

} // namespace tamble::client
