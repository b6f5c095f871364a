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

QString RTextFieldIntValidator::message(const QString &text) const
{
    if (checkInteger(text, bottom(), top()) == Acceptable)
        return {};
    return tr("Enter a whole number from %1 to %2").arg(bottom()).arg(top());
}

} // namespace tamble::client
