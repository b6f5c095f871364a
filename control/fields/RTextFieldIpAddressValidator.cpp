#include "fields/RTextFieldIpAddressValidator.h"

#include "fields/FieldChecks.h"

namespace tamble::client {

RTextFieldIpAddressValidator::RTextFieldIpAddressValidator(QObject *parent)
    : QValidator(parent)
{}

QValidator::State RTextFieldIpAddressValidator::validate(QString &text, int &) const
{
    return checkIpAddress(text);
}

void RTextFieldIpAddressValidator::fixup(QString &text) const
{
    text = text.trimmed();
}

} // namespace tamble::client
