#pragma once

#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// What a page puts into an item of a workspace: an item that it has made, or a component for when it is first seen.
class ItemContent
{
public:
    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item) { m_item = item; }
    QQmlComponent *component() const { return m_component; }
    /// What another component has made goes.
    void setComponent(QQmlComponent *component);

    /// Shows or hides it; what the component makes belongs to `owner`, and is below the item, or else below `owner`.
    void show(bool isShown, QQuickItem &owner);

private:
    QPointer<QQuickItem> m_item;
    QPointer<QQmlComponent> m_component;
    QPointer<QQuickItem> m_made; // of the component
};

} // namespace tamble::client
