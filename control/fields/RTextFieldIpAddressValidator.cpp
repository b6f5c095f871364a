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

QString RTextFieldIpAddressValidator::message(const QString &text) const
{
    return checkIpAddress(text) == Acceptable ? QString() : tr("Enter an address such as 192.168.1.10");
}

} // namespace tamble::client
