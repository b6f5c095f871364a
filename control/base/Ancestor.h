#pragma once

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// The nearest ancestor of a type; null for none. One that is being destroyed is not found, as it is by qobject_cast:
/// the meta-object of an item that is made in QML names its type to the end.
template <typename Type>
Type *nearestAncestor(const QQuickItem &item)
{
    for (QQuickItem *ancestor = item.parentItem(); ancestor; ancestor = ancestor->parentItem()) {
        if (auto *found = dynamic_cast<Type *>(ancestor))
            return found;
    }
    return nullptr;
}

} // namespace tamble::client
