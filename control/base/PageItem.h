#pragma once

class QQmlComponent;
class QQuickItem;

namespace tamble::client {

/// Makes the item that a page describes by a component, below `parent` and as a child of `owner`. Null when the
/// component is not ready or makes no item.
QQuickItem *makePageItem(QQmlComponent &component, QQuickItem &parent, QQuickItem &owner);

} // namespace tamble::client
