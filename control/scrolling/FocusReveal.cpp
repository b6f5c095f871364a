#include "scrolling/FocusReveal.h"

#include "scrolling/EnclosingView.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitemview_p.h>

#include <algorithm>

namespace tamble::client {

namespace {

constexpr auto viewChanges = QQuickItemPrivate::Geometry | QQuickItemPrivate::Destroyed;

/// Where the keys go to.
struct FocusPlace
{
    QQuickItem *item;
    QRectF part;
};

QRectF wholeOf(const QQuickItem &item)
{
    return {QPointF(), item.size()};
}

/// The row, cell or handle within what has the focus as a whole, or where a text is edited.
FocusPlace placeOf(QQuickItem &item)
{
    for (const char *name : {"currentItem", "handle"}) {
        auto *part = item.property(name).value<QQuickItem *>();
        if (part && item.isAncestorOf(part))
            return {part, wholeOf(*part)};
    }
    const QVariant cursor = item.property("cursorRectangle");
    return {&item, cursor.isValid() ? cursor.toRectF() : wholeOf(item)};
}

/// Whether at least half of a place is seen, or the view is half full of it.
bool isSeen(const QRectF &place, const QSizeF &room)
{
    const QSizeF seen = (place & QRectF({}, room)).size();
    const QSizeF wanted = place.size().boundedTo(room) / 2.0;
    return !room.isEmpty() && seen.width() >= wanted.width() && seen.height() >= wanted.height();
}

} // namespace

FocusReveal::FocusReveal(QQuickItem *parent)
    : QQuickItem(parent)
{}

FocusReveal::~FocusReveal()
{
    listen(false);
    if (m_window)
        m_window->disconnect(this);
}

void FocusReveal::setSettled(bool settled)
{
    if (m_isSettled == settled)
        return;
    m_isSettled = settled;
    if (!settled)
        reveal();
    Q_EMIT settledChanged();
}

// The window polishes last what asked for it first.
void FocusReveal::reveal()
{
    m_isPending = true;
    polish();
}

void FocusReveal::updatePolish()
{
    m_isPending = false;
    QQuickItem *item = window() ? window()->activeFocusItem() : nullptr;
    if (!item)
        return;
    EnclosingView::revealEverywhere(*item, wholeOf(*item));
    if (auto *list = qobject_cast<QQuickItemView *>(item))
        list->positionViewAtIndex(list->currentIndex(), QQuickItemView::Contain);
    const FocusPlace place = placeOf(*item);
    EnclosingView::revealEverywhere(*place.item, place.part);
}

void FocusReveal::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change != ItemSceneChange)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = data.window;
    if (m_window)
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &FocusReveal::followFocus);
    followFocus();
}

void FocusReveal::listen(bool on)
{
    for (QQuickItem *view : std::as_const(m_views))
        listenTo(view, *this, viewChanges, on);
}

void FocusReveal::followFocus()
{
    listen(false);
    m_views.clear();
    for (QQuickItem *item = m_window ? m_window->activeFocusItem() : nullptr; item; item = item->parentItem()) {
        if (EnclosingView::isView(*item))
            m_views.append(item);
    }
    listen(true);
}

// What is in the view follows only now, so its place is still the one that was seen.
void FocusReveal::itemGeometryChanged(QQuickItem *resized, QQuickGeometryChange change, const QRectF &before)
{
    QQuickItem *item = m_window ? m_window->activeFocusItem() : nullptr;
    if (m_isPending || !item || !change.sizeChange())
        return;
    const FocusPlace place = placeOf(*item);
    const bool wasSeen = std::ranges::all_of(std::as_const(m_views), [&](const QQuickItem *view) {
        return !view->isAncestorOf(place.item) ||
               isSeen(view->mapRectFromItem(place.item, place.part), view == resized ? before.size() : view->size());
    });
    if (wasSeen)
        reveal();
}

void FocusReveal::itemDestroyed(QQuickItem *view)
{
    m_views.removeOne(view);
}

} // namespace tamble::client
