#include "dialogs/RDialogBody.h"

#include "base/ItemListening.h"

#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquicktext_p.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

bool wraps(const QQuickItem &item)
{
    const auto *text = qobject_cast<const QQuickText *>(&item);
    return text && text->wrapMode() != QQuickText::NoWrap;
}

qreal askedFor(qreal implicit, qreal size)
{
    return implicit > 0.0 ? implicit : size;
}

} // namespace

RDialogBody::RDialogBody(QQuickItem *parent)
    : QQuickItem(parent)
{}

RDialogBody::~RDialogBody()
{
    const QList<QQuickItem *> children = childItems();
    for (QQuickItem *child : children)
        watch(*child, false);
}

void RDialogBody::itemChange(ItemChange change, const ItemChangeData &data)
{
    const bool isAdded = change == ItemChildAddedChange;
    if (isAdded || change == ItemChildRemovedChange) {
        watch(*data.item, isAdded);
        measure();
    }
    QQuickItem::itemChange(change, data);
}

void RDialogBody::watch(QQuickItem &child, bool watched)
{
    listenTo(&child, *this,
             QQuickItemPrivate::Geometry | QQuickItemPrivate::ImplicitWidth | QQuickItemPrivate::ImplicitHeight |
                 QQuickItemPrivate::Visibility,
             watched);
}

void RDialogBody::measure()
{
    qreal width = 0.0;
    qreal height = 0.0;
    qreal reach = 0.0;
    const QList<QQuickItem *> children = childItems();
    for (const QQuickItem *child : children) {
        // A closed dialog shows none of them, but has a size all the same.
        if (!QQuickItemPrivate::get(child)->explicitVisible)
            continue;
        if (!wraps(*child))
            width = std::max(width, child->x() + askedFor(child->implicitWidth(), child->width()));
        reach = std::max(reach, child->x() + child->width());
        height = std::max(height, child->y() + askedFor(child->implicitHeight(), child->height()));
    }
    setImplicitSize(width, height);
    if (std::exchange(m_reach, reach) != reach)
        Q_EMIT reachChanged();
}

} // namespace tamble::client
