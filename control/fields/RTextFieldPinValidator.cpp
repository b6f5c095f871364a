#include "fields/RTextFieldPinValidator.h"

#include "fields/FieldChecks.h"

namespace tamble::client {

RTextFieldPinValidator::RTextFieldPinValidator(QObject *parent)
    : QValidator(parent)
{
    // A field looks at its text again when its validator reports a change.
    connect(this, &RTextFieldPinValidator::minimumLengthChanged, this, &QValidator::changed);
    connect(this, &RTextFieldPinValidator::maximumLengthChanged, this, &QValidator::changed);
    connect(this, &RTextFieldPinValidator::trivialAllowedChanged, this, &QValidator::changed);
}

QValidator::State RTextFieldPinValidator::validate(QString &text, int &) const
{
    const State state = checkDigits(text, m_minimumLength, m_maximumLength);
    return state == Acceptable && !m_trivialAllowed && isTrivialPin(text) ? Intermediate : state;
}

QString RTextFieldPinValidator::message(const QString &text) const
{
    if (checkDigits(text, m_minimumLength, m_maximumLength) != Acceptable)
        return tr("Enter %1 to %2 digits").arg(m_minimumLength).arg(m_maximumLength);
    return !m_trivialAllowed && isTrivialPin(text) ? tr("This PIN is too easy to guess") : QString();
}

} // namespace tamble::client
