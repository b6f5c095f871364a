#include "workspace/Arrangement.h"

#include "workspace/Snapping.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace tamble::client {

namespace {

QPointF alignedCorner(const QRectF &rect, const QRectF &bounds, Qt::Alignment edge)
{
    switch (int(edge)) {
    case Qt::AlignLeft:
        return QPointF(bounds.left(), rect.top());
    case Qt::AlignRight:
        return QPointF(bounds.right() - rect.width(), rect.top());
    case Qt::AlignHCenter:
        return QPointF(bounds.center().x() - rect.width() / 2.0, rect.top());
    case Qt::AlignTop:
        return QPointF(rect.left(), bounds.top());
    case Qt::AlignBottom:
        return QPointF(rect.left(), bounds.bottom() - rect.height());
    case Qt::AlignVCenter:
        return QPointF(rect.left(), bounds.center().y() - rect.height() / 2.0);
    default:
        return rect.topLeft();
    }
}

std::vector<QPointF> cornersOf(std::span<const QRectF> rects)
{
    std::vector<QPointF> corners;
    for (const QRectF &rect : rects)
        corners.push_back(rect.topLeft());
    return corners;
}

} // namespace

QRectF boundsOf(std::span<const QRectF> rects)
{
    if (rects.empty())
        return {};
    constexpr double most = std::numeric_limits<double>::max();
    QPointF topLeft(most, most);
    QPointF bottomRight(-most, -most);
    for (const QRectF &rect : rects) {
        topLeft = QPointF(std::min(topLeft.x(), rect.left()), std::min(topLeft.y(), rect.top()));
        bottomRight = QPointF(std::max(bottomRight.x(), rect.right()), std::max(bottomRight.y(), rect.bottom()));
    }
    return QRectF(topLeft, bottomRight);
}

std::vector<QPointF> aligned(std::span<const QRectF> rects, const QRectF &bounds, Qt::Alignment edge)
{
    std::vector<QPointF> corners;
    for (const QRectF &rect : rects)
        corners.push_back(alignedCorner(rect, bounds, edge));
    return corners;
}

std::vector<QPointF> distributed(std::span<const QRectF> rects, Qt::Orientation direction)
{
    std::vector<QPointF> corners = cornersOf(rects);
    if (rects.size() < 3)
        return corners;
    const bool isAcross = direction == Qt::Horizontal;
    const auto start = [&](std::size_t i) { return isAcross ? rects[i].left() : rects[i].top(); };
    const auto length = [&](std::size_t i) { return isAcross ? rects[i].width() : rects[i].height(); };

    std::vector<std::size_t> order(rects.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](auto left, auto right) { return start(left) < start(right); });

    double room = start(order.back()) - start(order.front());
    for (auto i = order.begin(); i != order.end() - 1; ++i)
        room -= length(*i);
    const double gap = room / double(order.size() - 1);
    double next = start(order.front());
    for (const std::size_t i : order) {
        if (i != order.back())
            (isAcross ? corners[i].rx() : corners[i].ry()) = next;
        next += length(i) + gap;
    }
    return corners;
}

std::vector<QPointF> keptInside(const QRectF &plane, std::span<const QRectF> rects)
{
    std::vector<QPointF> corners = cornersOf(rects);
    const QPointF offset = offsetInto(plane, boundsOf(rects));
    for (QPointF &corner : corners)
        corner += offset;
    return corners;
}

} // namespace tamble::client
