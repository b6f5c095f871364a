#include "style/StyleTree.h"

#include "base/StyleTypeName.h"
#include "style/StyleSet.h"
#include "style/resolution/StylePathPool.h"

#include <QtGui/QWindow>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

QObject *visualParent(const QObject *object)
{
    if (const auto *item = qobject_cast<const QQuickItem *>(object))
        return item->parentItem();
    return object && !object->isWindowType() ? object->parent() : nullptr;
}

StyleSet *attachedStyleSet(const QObject *object)
{
    return qobject_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(object, false));
}

QString styleTypeName(const QObject *object, const QString &typeName)
{
    if (!object)
        return QStringLiteral("(null)");
    return typeName.isEmpty() ? styleTypeName(object->metaObject()->className()) : typeName;
}

StylePathRef pathOf(QObject *object)
{
    if (!object)
        return {};
    if (StyleSet *styleSet = attachedStyleSet(object))
        return styleSet->stylePath();
    return StylePathPool::instance().child(pathOf(visualParent(object)).get(), styleTypeName(object, QString()), {},
                                           {});
}

bool isInScene(const StylePath *path)
{
    return path && path->outermost().typeName() == QLatin1String("QQuickRootItem");
}

bool isRooted(const StylePath *path)
{
    return isInScene(path) || (path && path->outermost().typeName() == QLatin1String("QQuickPopupItem"));
}

void collectNearestStyleSets(const QObject *object, QList<QPointer<StyleSet>> &found)
{
    const auto visit = [&found](const QObject *child) {
        if (StyleSet *styleSet = attachedStyleSet(child))
            found.append(styleSet);
        else
            collectNearestStyleSets(child, found);
    };
    if (const auto *item = qobject_cast<const QQuickItem *>(object)) {
        const QList<QQuickItem *> children = item->childItems(); // constant, or the loop would copy them
        for (const QQuickItem *child : children)
            visit(child);
    }
    // Items are children of their visual parent only; a window starts a scene of its own.
    for (const QObject *child : object->children()) {
        if (!child->isQuickItemType() && !child->isWindowType() && !qobject_cast<const StyleSet *>(child))
            visit(child);
    }
}

} // namespace tamble::client
