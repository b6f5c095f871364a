#pragma once

#include "base/ControlExport.h"
#include "fields/FieldReason.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QDoubleValidator>

namespace tamble::client {

/// Decimal numbers, typed with a point or a comma. A number outside the range can still be typed on.
///
/// It has no meta-object of its own, so QML sees the properties of `QDoubleValidator`.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldDoubleValidator : public QDoubleValidator, public FieldReason
{
    Q_DECLARE_TR_FUNCTIONS(tamble::client::RTextFieldDoubleValidator)

public:
    explicit RTextFieldDoubleValidator(QObject *parent = nullptr);

    State validate(QString &text, int &cursor) const override;
    /// Tidies blanks, comma, trailing separator and leading zeros; the number stays the same.
    void fixup(QString &text) const override;
    QString message(const QString &text) const override;
};

} // namespace tamble::client
