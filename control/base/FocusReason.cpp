#include "base/FocusReason.h"

#include <QtQuick/private/qquickdeliveryagent_p_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

bool isFocusByMouse(QQuickItem &item)
{
    const auto *agent = QQuickItemPrivate::get(&item)->deliveryAgentPrivate();
    return agent && agent->lastFocusReason == Qt::MouseFocusReason;
}

} // namespace tamble::client
