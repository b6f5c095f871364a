#include "fields/FieldReason.h"

namespace tamble::client {

FieldReason::~FieldReason() = default;

QString FieldReason::of(const QValidator *validator, const QString &text)
{
    const auto *reason = dynamic_cast<const FieldReason *>(validator);
    return reason ? reason->message(text) : QString();
}

} // namespace tamble::client
