#include "scrolling/EnclosingView.h"

#include "scrolling/FrozenHeaders.h"

#include <QtQuick/QQuickItem>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// How far a view of `visible` length has to scroll for `part`; its beginning counts when not all of it has room.
double wayTo(double partBegin, double partEnd, double visibleBegin, double visibleEnd)
{
    if (partBegin < visibleBegin)
        return partBegin - visibleBegin;
    return std::max(0.0, std::min(partEnd - visibleEnd, partBegin - visibleBegin));
}

/// In a list the content begins where its first row happens to lie.
void scroll(QQuickItem &view, const char *position, const char *begin, const char *length, double way, double room)
{
    const double nearest = view.property(begin).toDouble();
    const double farthest = nearest + std::max(0.0, view.property(length).toDouble() - room);
    if (way != 0.0)
        view.setProperty(position, std::clamp(view.property(position).toDouble() + way, nearest, farthest));
}

void scrollView(QQuickItem &view, const QPointF &way)
{
    scroll(view, "contentX", "originX", "contentWidth", way.x(), view.width());
    scroll(view, "contentY", "originY", "contentHeight", way.y(), view.height());
}

} // namespace

EnclosingView::EnclosingView(QQuickItem *item)
    : QObject(item)
    , m_item(item)
{}

void EnclosingView::find()
{
    QQuickItem *view = m_item->parentItem();
    while (view && !isView(*view))
        view = view->parentItem();
    if (view == m_view)
        return;
    if (m_view)
        m_view->disconnect(this);
    m_view = view;
    if (!view)
        return;
    // By name, as the class has no public header.
    connect(view, SIGNAL(contentXChanged()), this, SIGNAL(scrolled()));
    connect(view, SIGNAL(contentYChanged()), this, SIGNAL(scrolled()));
    connect(view, &QQuickItem::widthChanged, this, &EnclosingView::scrolled);
    connect(view, &QQuickItem::heightChanged, this, &EnclosingView::scrolled);
}

QRectF EnclosingView::visibleRect() const
{
    return m_view ? m_item->mapRectFromItem(m_view, {QPointF(), m_view->size()}) : m_item->boundingRect();
}

void EnclosingView::reveal(const QRectF &part, const QMarginsF &covered)
{
    if (m_view)
        reveal(*m_view, m_view->mapRectFromItem(m_item, part), covered);
}

void EnclosingView::reveal(QQuickItem &view, const QRectF &part, const QMarginsF &covered)
{
    const QRectF visible = QRectF({}, view.size()).marginsRemoved(covered);
    scrollView(view, {wayTo(part.left(), part.right(), visible.left(), visible.right()),
                      wayTo(part.top(), part.bottom(), visible.top(), visible.bottom())});
}

void EnclosingView::revealEverywhere(const QQuickItem &item, const QRectF &part)
{
    QMarginsF covered;
    for (QQuickItem *around = item.parentItem(); around; around = around->parentItem()) {
        if (const auto *headers = dynamic_cast<const FrozenHeaders *>(around))
            covered = headers->coveredFor(item);
        if (!isView(*around))
            continue;
        const QRectF room = QRectF({}, around->size()).marginsRemoved(covered);
        QRectF place = around->mapRectFromItem(&item, part);
        if (place.left() <= room.left() && place.right() >= room.right())
            place = {room.left(), place.top(), room.width(), place.height()};
        if (place.top() <= room.top() && place.bottom() >= room.bottom())
            place = {place.left(), room.top(), place.width(), room.height()};
        reveal(*around, place, std::exchange(covered, {}));
    }
}

bool EnclosingView::isView(const QQuickItem &item)
{
    return item.inherits("QQuickFlickable");
}

void EnclosingView::scrollBy(const QPointF &way)
{
    if (m_view)
        scrollView(*m_view, way);
}

} // namespace tamble::client
