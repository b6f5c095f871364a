#include "scrolling/RStripRow.h"

#include "base/FocusReason.h"

#include <QtCore/QEasingCurve>
#include <QtGui/QWheelEvent>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

// Places are measured from the side where reading begins: the left edge, or the right one in a mirrored row.

namespace tamble::client {

namespace {

constexpr int scrollMs = 150;
/// Pixels for a notch of the wheel.
constexpr qreal wheelStep = 64.0;

} // namespace

RStripRow::RStripRow(QQuickItem *parent)
    : QQuickRow(parent)
    , m_view(this)
{
    m_motion.setDuration(scrollMs);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_view, &EnclosingView::scrolled, this, &RStripRow::findVisible);
    connect(&m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant &begin) {
        m_view.scrollBy({sideSign() * (begin.toReal() - viewBegin()), 0.0});
    });
}

RStripRow::~RStripRow()
{
    m_view.disconnect(this);
    m_motion.disconnect(this);
    if (m_window)
        m_window->disconnect(this);
}

/// What the row has placed, in its order.
QList<QQuickItem *> RStripRow::strips() const
{
    QList<QQuickItem *> found = childItems();
    found.removeIf(
        [](const QQuickItem *item) { return !item->isVisible() || item->width() <= 0.0 || item->height() <= 0.0; });
    return found;
}

/// 1 where places grow to the right.
qreal RStripRow::sideSign() const
{
    return effectiveLayoutDirection() == Qt::RightToLeft ? -1.0 : 1.0;
}

qreal RStripRow::beginOf(const QQuickItem &strip) const
{
    return sideSign() < 0.0 ? width() - strip.x() - strip.width() : strip.x();
}

qreal RStripRow::viewBegin() const
{
    const QRectF visible = m_view.visibleRect();
    return sideSign() < 0.0 ? width() - visible.right() : visible.left();
}

/// Where the view begins once the row rests.
qreal RStripRow::target() const
{
    return m_motion.state() == QAbstractAnimation::Running ? m_motion.endValue().toReal() : viewBegin();
}

void RStripRow::scrollTo(qreal begin)
{
    const qreal farthest = std::max(0.0, width() - m_view.visibleRect().width());
    m_motion.stop();
    m_motion.setStartValue(viewBegin());
    m_motion.setEndValue(std::clamp(begin, 0.0, farthest));
    m_motion.start();
}

void RStripRow::scrollBy(qreal pages)
{
    if (!std::isfinite(pages))
        return;
    scrollTo(target() + pages * m_view.visibleRect().width());
    if (m_snapsToItems)
        snap();
}

void RStripRow::step(int items)
{
    const QList<QQuickItem *> all = strips();
    if (all.isEmpty())
        return;
    // The first one that begins in the view.
    const auto first = std::ranges::find_if(all, [this](const auto *item) { return beginOf(*item) >= target() - 0.5; });
    const qsizetype here = first - all.begin();
    scrollTo(beginOf(*all[std::clamp<qsizetype>(here + items, 0, all.size() - 1)]));
}

void RStripRow::snap()
{
    if (!m_snapsToItems)
        return;
    const qreal wanted = target();
    std::optional<qreal> nearest;
    for (const QQuickItem *item : strips()) {
        const qreal begin = beginOf(*item);
        if (!nearest || std::abs(begin - wanted) < std::abs(*nearest - wanted))
            nearest = begin;
    }
    if (nearest && *nearest != wanted)
        scrollTo(*nearest);
}

void RStripRow::ensureVisible(QQuickItem *item)
{
    if (!item || !isAncestorOf(item))
        return;
    m_toReveal = item;
    polish();
}

void RStripRow::componentComplete()
{
    QQuickRow::componentComplete();
    m_view.find();
    polish();
}

void RStripRow::updatePolish()
{
    QQuickRow::updatePolish();
    m_view.find();
    const bool hasRoom = m_view.visibleRect().width() > 0.0 && width() > 0.0;
    if (hasRoom && !std::exchange(m_hasBegun, true) && sideSign() < 0.0)
        m_view.scrollBy({width(), 0.0});
    const QQuickItem *item = std::exchange(m_toReveal, nullptr);
    if (item && item->isVisible() && isAncestorOf(item))
        m_view.reveal(mapRectFromItem(item, QRectF(QPointF(), item->size())), {});
    findVisible();
}

void RStripRow::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickRow::itemChange(change, data);
    if (change != ItemSceneChange)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = data.window;
    if (m_window) {
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this,
                [this] { followFocus(m_window->activeFocusItem()); });
    }
}

// What is pressed stays under the pointer.
void RStripRow::followFocus(QQuickItem *focused)
{
    if (focused && !isFocusByMouse(*this))
        ensureVisible(focused);
}

void RStripRow::findVisible()
{
    const QRectF visible = m_view.visibleRect();
    Seen seen{-1, -1, visible.left() > 0.5, visible.right() < width() - 0.5};
    int index = 0;
    for (const QQuickItem *item : strips()) {
        if (item->x() < visible.right() - 0.5 && item->x() + item->width() > visible.left() + 0.5) {
            seen.first = seen.first < 0 ? index : seen.first;
            seen.last = index;
        }
        ++index;
    }
    if (std::exchange(m_seen, seen) != seen)
        Q_EMIT visibleIndexesChanged();
}

void RStripRow::wheelEvent(QWheelEvent *event)
{
    const QPointF turned = event->hasPixelDelta()
                               ? QPointF(event->pixelDelta())
                               : QPointF(event->angleDelta()) / QWheelEvent::DefaultDeltasPerStep * wheelStep;
    event->setAccepted(turned.y() != 0.0 && (hasMoreAtLeft() || hasMoreAtRight()));
    if (!event->isAccepted())
        return;
    m_motion.stop();
    m_view.scrollBy({-sideSign() * turned.y(), 0.0});
}

} // namespace tamble::client
