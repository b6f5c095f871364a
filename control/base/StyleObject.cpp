#include "base/StyleObject.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QVariant>

#include <cmath>

namespace tamble::client {

QColor styleColor(const QObject *style, const char *name)
{
    return style ? style->property(name).value<QColor>() : QColor();
}

double styleWidth(const QObject *style, const char *name)
{
    bool isNumber = false;
    const double width = style ? style->property(name).toDouble(&isNumber) : 0.0;
    return isNumber && std::isfinite(width) ? width : 1.0;
}

bool exchangeStyle(QPointer<QObject> &stored, QObject *style, QObject *item, const char *slot)
{
    if (stored == style)
        return false;
    if (stored)
        stored->disconnect(item);
    stored = style;
    if (!style)
        return true;
    const QMetaMethod refresh = item->metaObject()->method(item->metaObject()->indexOfSlot(slot));
    const QMetaObject *described = style->metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < described->propertyCount(); ++i) {
        const QMetaProperty property = described->property(i);
        if (property.hasNotifySignal())
            QObject::connect(style, property.notifySignal(), item, refresh);
    }
    QObject::connect(style, QMetaMethod::fromSignal(&QObject::destroyed), item, refresh);
    return true;
}

} // namespace tamble::client
