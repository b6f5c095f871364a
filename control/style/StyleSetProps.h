#pragma once

#include "ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Resolved style values of one style path. A key that no rule supplies gives the default value of the asked type.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleSetProps : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleSetProps)
    QML_UNCREATABLE("Exposed as RStyleSet.props")

public:
    explicit StyleSetProps(QObject *parent = nullptr);

    Q_INVOKABLE bool isValid() const;
    Q_INVOKABLE bool isSet(const QString &key) const;
    Q_INVOKABLE QVariant get(const QString &key) const;
    Q_INVOKABLE QVariant values(const QString &key) const;
    Q_INVOKABLE QColor color(const QString &key) const;
    Q_INVOKABLE bool boolean(const QString &key) const;
    Q_INVOKABLE double number(const QString &key) const;
    Q_INVOKABLE QFont font(const QString &key) const;
    Q_INVOKABLE QString string(const QString &key) const;
    Q_INVOKABLE QUrl url(const QString &key) const;

Q_SIGNALS:
    void propsChanged();
};

} // namespace tamble::client
