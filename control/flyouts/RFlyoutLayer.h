#pragma once

#include "base/ControlExport.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Where the flyouts of a page stand.
class TAMBLE_CLIENT_CONTROL_EXPORT RFlyoutLayer : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutLayer)

public:
    using QQuickItem::QQuickItem;

    /// Gives the focus to the next flyout that is open; false when there is none.
    Q_INVOKABLE bool focusNext();
};

} // namespace tamble::client
