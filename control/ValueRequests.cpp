#include "ValueRequests.h"

#include <QtGui/QAccessible>
#include <QtQuick/private/qaccessiblequickitem_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

namespace {

class RequestingInterface : public QAccessibleQuickItem
{
public:
    using QAccessibleQuickItem::QAccessibleQuickItem;

    void setCurrentValue(const QVariant &value) override
    {
        QMetaObject::invokeMethod(item(), "requestValue", Q_ARG(QVariant, value));
    }
};

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    // Asked for each class of the object, the most derived one first.
    const QMetaObject *type = object->metaObject();
    if (className != QLatin1String(type->className()) || type->indexOfMethod("requestValue(QVariant)") < 0)
        return nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    return item && QQuickItemPrivate::get(item)->isAccessible ? new RequestingInterface(item) : nullptr;
}

} // namespace

void installValueRequests()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tamble::client
