#include "scrolling/FocusReveal.h"

#include "scrolling/EnclosingView.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitemview_p.h>

namespace tamble::client {

namespace {

/// Scrolls every view around an item so that a part of it is seen. What fills a view is left as it is scrolled.
void revealEverywhere(const QQuickItem &item, const QRectF &part)
{
    for (QQuickItem *view = item.parentItem(); view; view = view->parentItem()) {
        if (!view->inherits("QQuickFlickable"))
            continue;
        QRectF place = view->mapRectFromItem(&item, part);
        if (place.left() <= 0.0 && place.right() >= view->width())
            place = {0.0, place.top(), view->width(), place.height()};
        if (place.top() <= 0.0 && place.bottom() >= view->height())
            place = {place.left(), 0.0, place.width(), view->height()};
        EnclosingView::reveal(*view, place, {});
    }
}

} // namespace

FocusReveal::FocusReveal(QQuickItem *parent)
    : QQuickItem(parent)
{}

void FocusReveal::setSettled(bool settled)
{
    if (m_isSettled == settled)
        return;
    m_isSettled = settled;
    // The window polishes last what asked for it first.
    if (!settled)
        polish();
    Q_EMIT settledChanged();
}

void FocusReveal::updatePolish()
{
    QQuickItem *item = window() ? window()->activeFocusItem() : nullptr;
    if (!item)
        return;
    revealEverywhere(*item, QRectF(QPointF(), item->size()));
    // Within what has the focus as a whole: the row or cell that the keys go to, and where a text is edited.
    if (auto *list = qobject_cast<QQuickItemView *>(item))
        list->positionViewAtIndex(list->currentIndex(), QQuickItemView::Contain);
    const auto *current = item->property("currentItem").value<QQuickItem *>();
    if (current && item->isAncestorOf(current))
        revealEverywhere(*current, QRectF(QPointF(), current->size()));
    if (const QVariant cursor = item->property("cursorRectangle"); cursor.isValid())
        revealEverywhere(*item, cursor.toRectF());
}

} // namespace tamble::client
