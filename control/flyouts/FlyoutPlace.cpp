#include "flyouts/FlyoutPlace.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace tamble::client {

namespace {

struct Span
{
    double low;
    double high;
};

Span columnsOf(const QRectF &rect)
{
    return {rect.left(), rect.right()};
}

Span rowsOf(const QRectF &rect)
{
    return {rect.top(), rect.bottom()};
}

bool meet(Span a, Span b, double reach)
{
    return a.low <= b.high + reach && b.low <= a.high + reach;
}

double finite(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

/// The candidate that is nearest to a wanted place, within reach.
class Nearest
{
public:
    Nearest(double wanted, double reach)
        : m_wanted(wanted)
        , m_found(wanted)
        , m_distance(reach)
    {}

    // Of two that are as near the first one counts.
    void offer(std::initializer_list<double> candidates)
    {
        for (const double candidate : candidates) {
            const double distance = std::abs(candidate - m_wanted);
            if (m_hasFound ? distance < m_distance : distance <= m_distance) {
                m_found = candidate;
                m_distance = distance;
                m_hasFound = true;
            }
        }
    }

    double found() const { return m_found; }

private:
    double m_wanted;
    double m_found;
    double m_distance;
    bool m_hasFound = false;
};

/// Start of something of `length` beside `area`: behind its end or before its begin, whatever is wanted and has room.
double beside(Span area, double length, double layer, bool isBehind)
{
    const double behind = area.high;
    const double before = area.low - length;
    if (isBehind ? behind + length <= layer || before < 0.0 : before < 0.0 && behind + length <= layer)
        return behind;
    return before;
}

double inside(double start, double length, double layer)
{
    return std::max(0.0, std::min(finite(start), layer - length));
}

} // namespace

QPointF standing(const FlyoutPlace &place, const QSizeF &size, const QSizeF &layer, const QSizeF &reachable)
{
    double x = finite(place.position.x());
    double y = finite(place.position.y());
    if (place.docked & Qt::LeftEdge)
        x = 0.0;
    else if (place.docked & Qt::RightEdge)
        x = layer.width() - size.width();
    if (place.docked & Qt::TopEdge)
        y = 0.0;
    else if (place.docked & Qt::BottomEdge)
        y = layer.height() - size.height();
    return {std::max(reachable.width() - size.width(), std::min(x, layer.width() - reachable.width())),
            std::max(0.0, std::min(y, layer.height() - reachable.height()))};
}

FlyoutPlace snapped(const QPointF &position, const QSizeF &size, const QSizeF &layer,
                    std::span<const QRectF> neighbours, double reach)
{
    if (reach < 0.0)
        return {position, {}};
    const QRectF wanted(position, size);
    const double width = size.width();
    const double height = size.height();
    Nearest x(position.x(), reach);
    Nearest y(position.y(), reach);
    x.offer({0.0, layer.width() - width});
    y.offer({0.0, layer.height() - height});
    for (const QRectF &other : neighbours) {
        if (meet(rowsOf(wanted), rowsOf(other), reach))
            x.offer({other.right(), other.left() - width, other.left(), other.right() - width});
        if (meet(columnsOf(wanted), columnsOf(other), reach))
            y.offer({other.bottom(), other.top() - height, other.top(), other.bottom() - height});
    }

    FlyoutPlace place{{x.found(), y.found()}, {}};
    place.docked.setFlag(Qt::LeftEdge, place.position.x() == 0.0);
    place.docked.setFlag(Qt::RightEdge, place.position.x() == layer.width() - width);
    place.docked.setFlag(Qt::TopEdge, place.position.y() == 0.0);
    place.docked.setFlag(Qt::BottomEdge, place.position.y() == layer.height() - height);
    return place;
}

QSizeF snappedSize(const QPointF &position, const QSizeF &size, const QSizeF &layer, const QSizeF &minimum,
                   std::span<const QRectF> neighbours, double reach)
{
    const QRectF wanted(position, size);
    Nearest right(wanted.right(), reach);
    Nearest bottom(wanted.bottom(), reach);
    right.offer({layer.width()});
    bottom.offer({layer.height()});
    for (const QRectF &other : neighbours) {
        if (meet(rowsOf(wanted), rowsOf(other), reach))
            right.offer({other.left(), other.right()});
        if (meet(columnsOf(wanted), columnsOf(other), reach))
            bottom.offer({other.top(), other.bottom()});
    }
    const double width = std::min(right.found(), layer.width()) - position.x();
    const double height = std::min(bottom.found(), layer.height()) - position.y();
    return {std::max(width, minimum.width()), std::max(height, minimum.height())};
}

QPointF besideArea(const QRectF &area, Qt::Edge edge, const QSizeF &size, const QSizeF &layer)
{
    double x = area.left();
    double y = area.top();
    if (edge == Qt::LeftEdge || edge == Qt::RightEdge)
        x = beside(columnsOf(area), size.width(), layer.width(), edge == Qt::RightEdge);
    else
        y = beside(rowsOf(area), size.height(), layer.height(), edge == Qt::BottomEdge);
    return inside(QPointF(x, y), size, layer);
}

QPointF inside(const QPointF &position, const QSizeF &size, const QSizeF &layer)
{
    return {inside(position.x(), size.width(), layer.width()), inside(position.y(), size.height(), layer.height())};
}

QPointF centred(const QSizeF &size, const QSizeF &layer)
{
    return {std::round(std::max(0.0, (layer.width() - size.width()) / 2.0)),
            std::round(std::max(0.0, (layer.height() - size.height()) / 2.0))};
}

} // namespace tamble::client
