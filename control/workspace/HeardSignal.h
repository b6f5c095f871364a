#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/private/qmetaobject_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

/// Whether anybody listens to a signal of an item. QObject's public question looks the signal up anew each time, which
/// counts with thousands of items.
template <auto signal>
bool isHeard(QQuickItem &item)
{
    static const auto index = uint(QMetaObjectPrivate::signalIndex(QMetaMethod::fromSignal(signal)));
    return QQuickItemPrivate::get(&item)->isSignalConnected(index);
}

} // namespace tamble::client
