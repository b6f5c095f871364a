#include "fields/FieldReason.h"

#include <QtCore/QCoreApplication>

namespace tamble::client {

FieldReason::~FieldReason() = default;

QString FieldReason::of(const QValidator *validator, const QString &text)
{
    const auto *reason = dynamic_cast<const FieldReason *>(validator);
    return reason ? reason->message(text) : QString();
}

QString FieldReason::problemOf(const QValidator *validator, const QString &text)
{
    QString checked = text;
    int cursor = 0;
    if (!validator || validator->validate(checked, cursor) == QValidator::Acceptable)
        return {};
    const QString message = of(validator, text);
    return message.isEmpty() ? QCoreApplication::translate("FieldReason", "This is not valid") : message;
}

} // namespace tamble::client
