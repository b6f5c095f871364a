#include "fields/RStringRuleValidator.h"

namespace tamble::client {

RStringRuleValidator::RStringRuleValidator(QObject *parent)
    : QValidator(parent)
{}

QValidator::State RStringRuleValidator::validate(QString &, int &) const
{
    return Acceptable;
}

} // namespace tamble::client
