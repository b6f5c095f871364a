#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Has the style engine report missing keys, at the next polish of its window after one was missed.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleChecker : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleChecker)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

public:
    explicit StyleChecker(QQuickItem *parent = nullptr);

    /// Whether anything is reported; true by default.
    bool isActive() const { return m_active; }
    void setActive(bool active);

Q_SIGNALS:
    void activeChanged();

protected:
    void updatePolish() override;

private:
    void listen();

    bool m_active = true;
    QMetaObject::Connection m_connection;
};

} // namespace tamble::client
