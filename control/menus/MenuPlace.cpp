#include "menus/MenuPlace.h"

#include <algorithm>
#include <optional>

namespace tamble::client {

namespace {

struct Span
{
    qreal low;
    qreal high;
};

/// Where something of `length` begins that lies behind `taken`, or else before it, within `room`.
std::optional<qreal> besideSpan(Span taken, qreal length, Span room)
{
    if (taken.high >= room.low && taken.high + length <= room.high)
        return taken.high;
    if (taken.low <= room.high && taken.low - length >= room.low)
        return taken.low - length;
    return std::nullopt;
}

/// The nearest place to `start` within `room`; what is longer begins with it.
qreal within(Span room, qreal start, qreal length)
{
    return std::max(room.low, std::min(start, room.high - length));
}

} // namespace

QPointF placeBesidePoint(const QPointF &pressed, const QSizeF &size, const QRectF &room)
{
    const Span columns{room.left(), room.right()};
    const Span rows{room.top(), room.bottom()};
    const Span pressedColumn{pressed.x() - 1.0, pressed.x() + 1.0};
    const Span pressedRow{pressed.y() - 1.0, pressed.y() + 1.0};
    // One of the two is enough to leave the point uncovered.
    const auto x = besideSpan(pressedColumn, size.width(), columns);
    const auto y = besideSpan(pressedRow, size.height(), rows);
    return {x.value_or(within(columns, pressedColumn.high, size.width())),
            y.value_or(within(rows, pressedRow.high, size.height()))};
}

QPointF placeBelow(const QRectF &area, const QSizeF &size, const QRectF &room)
{
    const Span rows{room.top(), room.bottom()};
    const auto y = besideSpan({area.top(), area.bottom()}, size.height(), rows);
    return {within({room.left(), room.right()}, area.left(), size.width()),
            y.value_or(within(rows, area.bottom(), size.height()))};
}

} // namespace tamble::client
