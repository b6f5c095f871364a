#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Native item with a text, for native code that needs one; the QML control of this name is a component of its own.
class TAMBLE_CLIENT_CONTROL_EXPORT RButton : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)

public:
    explicit RButton(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
};

} // namespace tamble::client
