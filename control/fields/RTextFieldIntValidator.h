#pragma once

#include "base/ControlExport.h"
#include "fields/FieldReason.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QIntValidator>

namespace tamble::client {

/// Whole numbers. A number outside the range can still be typed on.
///
/// It has no meta-object of its own, so QML sees the properties of `QIntValidator`.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldIntValidator : public QIntValidator, public FieldReason
{
    Q_DECLARE_TR_FUNCTIONS(tamble::client::RTextFieldIntValidator)

public:
    explicit RTextFieldIntValidator(QObject *parent = nullptr);

    State validate(QString &text, int &cursor) const override;
    /// Tidies blanks and leading zeros; the number stays the same.
    void fixup(QString &text) const override;
    QString message(const QString &text) const override;
};

} // namespace tamble::client
