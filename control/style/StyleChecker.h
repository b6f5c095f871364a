#pragma once

#include "ControlExport.h"

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Makes the style engine report the keys that controls asked for and no rule supplies.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleChecker : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleChecker)
    Q_PROPERTY(bool active MEMBER m_active NOTIFY activeChanged)

public:
    explicit StyleChecker(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void activeChanged();

private:
    bool m_active = true;
};

} // namespace tamble::client
