#include "fields/RTextFieldIntValidator.h"

#include "fields/FieldChecks.h"

namespace tamble::client {

RTextFieldIntValidator::RTextFieldIntValidator(QObject *parent)
    : QIntValidator(parent)
{}

QValidator::State RTextFieldIntValidator::validate(QString &text, int &) const
{
    return checkInteger(text, bottom(), top());
}

void RTextFieldIntValidator::fixup(QString &text) const
{
    text = tidyInteger(text);
}

} // namespace tamble::client
