#include "FocusScroller.h"

#include <QtQuick/QQuickWindow>

#include <algorithm>

namespace {

/// Where a view of `length` stands best that stands at `position`: no further away than it must be to show the range,
/// and the beginning of one that is too long.
qreal positionFor(qreal position, qreal length, qreal from, qreal to, qreal whole)
{
    const qreal highest = std::max(0.0, whole - length);
    return std::clamp(std::min(std::max(position, to - length), from), 0.0, highest);
}

} // namespace

FocusScroller::FocusScroller(QQuickItem *parent)
    : QQuickItem(parent)
{}

void FocusScroller::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange) {
        disconnect(m_connection);
        if (data.window)
            m_connection = connect(data.window, &QQuickWindow::activeFocusItemChanged, this, &FocusScroller::polish);
    }
    QQuickItem::itemChange(change, data);
}

// A table gives the focus to a cell that it has not placed yet.
void FocusScroller::updatePolish()
{
    const QQuickItem *item = window() ? window()->activeFocusItem() : nullptr;
    const auto *content = m_view ? m_view->property("contentItem").value<QQuickItem *>() : nullptr;
    // A press of the pointer has its item in view already, and must not move it away from under the finger.
    if (!item || !content || !content->isAncestorOf(item) || m_view->property("moving").toBool())
        return;
    reveal(*item, *content);
    // Of a fader that is longer than the view, where its level is.
    if (const auto *handle = item->property("handle").value<QQuickItem *>())
        reveal(*handle, *content);
}

void FocusScroller::reveal(const QQuickItem &item, const QQuickItem &content)
{
    const QRectF place = item.mapRectToItem(&content, {0.0, 0.0, item.width(), item.height()})
                             .adjusted(-m_margin, -m_margin, m_margin, m_margin);
    m_view->setProperty("contentX", positionFor(m_view->property("contentX").toReal(), m_view->width(), place.left(),
                                                place.right(), m_view->property("contentWidth").toReal()));
    m_view->setProperty("contentY", positionFor(m_view->property("contentY").toReal(), m_view->height(), place.top(),
                                                place.bottom(), m_view->property("contentHeight").toReal()));
}
