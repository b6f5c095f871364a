#pragma once

#include "base/ControlExport.h"
#include "fields/FieldReason.h"

#include <QtGui/QValidator>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Numeric codes of `minimumLength` (4) to `maximumLength` (8) digits.
///
/// With `trivialAllowed` false, one repeated digit and runs up or down by one are not accepted.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextFieldPinValidator : public QValidator, public FieldReason
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextFieldPinValidator)
    /// `minimumLength` and `maximumLength`: fewest and most digits.
    Q_PROPERTY(int minimumLength MEMBER m_minimumLength NOTIFY minimumLengthChanged)
    Q_PROPERTY(int maximumLength MEMBER m_maximumLength NOTIFY maximumLengthChanged)
    /// Whether one repeated digit and runs by one are accepted.
    Q_PROPERTY(bool trivialAllowed MEMBER m_trivialAllowed NOTIFY trivialAllowedChanged)

public:
    explicit RTextFieldPinValidator(QObject *parent = nullptr);

    State validate(QString &text, int &cursor) const override;
    /// Why a text is not accepted, for the user; empty when it is.
    Q_INVOKABLE QString message(const QString &text) const override;

Q_SIGNALS:
    void minimumLengthChanged();
    void maximumLengthChanged();
    void trivialAllowedChanged();

private:
    int m_minimumLength = 4;
    int m_maximumLength = 8;
    bool m_trivialAllowed = true;
};

} // namespace tamble::client
