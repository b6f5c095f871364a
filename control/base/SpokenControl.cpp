#include "base/SpokenControl.h"

#include "base/ControlLog.h"
#include "base/StyleTypeName.h"

#include <QtCore/QSet>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

QString spokenNameOf(const QQuickItem &item)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(&item);
    if (attached && !attached->name().isEmpty())
        return attached->name();
    const auto *control = dynamic_cast<const SpokenControl *>(&item);
    return control ? control->spokenName() : QString();
}

bool isIgnoredByTools(const QQuickItem &item)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(&item);
    return attached && attached->ignored();
}

void beginToSpeak(QQuickItem &item)
{
    if (isIgnoredByTools(item))
        return;
    QQuickItemPrivate::get(&item)->setAccessible();
    announce(item, QAccessible::ObjectCreated);

    static QSet<QString> warnedTypes;
    const QString type = styleTypeName(item.metaObject()->className());
    if (spokenNameOf(item).isEmpty() && !warnedTypes.contains(type)) {
        warnedTypes.insert(type);
        qCWarning(controlLog, "WARN: %s has no accessible name", qPrintable(type));
    }
}

void announce(QQuickItem &item, QAccessible::Event change)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&item, change);
    QAccessible::updateAccessibility(&event);
}

void announceStates(QQuickItem &item, QAccessible::State changed)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleStateChangeEvent event(&item, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace tamble::client
