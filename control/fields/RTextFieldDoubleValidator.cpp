#include "fields/RTextFieldDoubleValidator.h"

#include "fields/FieldChecks.h"

namespace tamble::client {

RTextFieldDoubleValidator::RTextFieldDoubleValidator(QObject *parent)
    : QDoubleValidator(parent)
{}

QValidator::State RTextFieldDoubleValidator::validate(QString &text, int &) const
{
    return checkDecimal(text, bottom(), top(), decimals());
}

void RTextFieldDoubleValidator::fixup(QString &text) const
{
    text = tidyDecimal(text);
}

} // namespace tamble::client
