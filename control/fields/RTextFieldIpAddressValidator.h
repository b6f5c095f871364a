#pragma once

#include "base/ControlExport.h"
#include "fields/FieldReason.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QValidator>

namespace tamble::client {

/// Dotted IPv4 addresses. It has no meta-object of its own, so QML sees a plain `QValidator`.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldIpAddressValidator : public QValidator, public FieldReason
{
    Q_DECLARE_TR_FUNCTIONS(tamble::client::RTextFieldIpAddressValidator)

public:
    explicit RTextFieldIpAddressValidator(QObject *parent = nullptr);

    State validate(QString &text, int &cursor) const override;
    /// Takes away outer blanks.
    void fixup(QString &text) const override;
    QString message(const QString &text) const override;
};

} // namespace tamble::client
