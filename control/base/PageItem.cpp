#include "base/PageItem.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <memory>

namespace tamble::client {

QQuickItem *makePageItem(QQmlComponent &component, QQuickItem &parent, QQuickItem &owner)
{
    if (!component.isReady()) // Qt 6.4 crashes on it
        return nullptr;
    QQmlContext *context = component.creationContext();
    std::unique_ptr<QObject> made(component.beginCreate(context ? context : component.engine()->rootContext()));
    auto *item = qobject_cast<QQuickItem *>(made.get());
    if (item) {
        item->setParent(&owner);
        item->setParentItem(&parent);
    }
    component.completeCreate();
    return item ? static_cast<QQuickItem *>(made.release()) : nullptr;
}

} // namespace tamble::client
