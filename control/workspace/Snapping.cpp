#include "workspace/Snapping.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

std::array<double, 3> linesOf(Qt::Orientation direction, const QRectF &rect)
{
    if (direction == Qt::Horizontal)
        return {rect.left(), rect.center().x(), rect.right()};
    return {rect.top(), rect.center().y(), rect.bottom()};
}

bool isNearer(double offset, double than)
{
    const double difference = std::abs(offset) - std::abs(than);
    return difference < 0.0 || (difference == 0.0 && offset < than);
}

double lengthInto(double planeStart, double planeEnd, double start, double end)
{
    return std::max(planeStart, std::min(start, planeEnd - (end - start))) - start;
}

struct Axis
{
    Qt::Orientation direction;
    double leader;
    double offset;
};

SnapLines::Hit snappedOnAxis(const Axis &axis, const QRectF &moved, const SnapLines &lines, const SnapRules &rules,
                             bool &isGuided)
{
    isGuided = false;
    if (!rules.axes.testFlag(axis.direction))
        return {axis.offset, 0.0};
    if (const auto hit = lines.nearest(axis.direction, moved, rules.distance)) {
        isGuided = true;
        return {axis.offset + hit->offset, hit->position};
    }
    return {snappedToGrid(axis.leader + axis.offset, rules.grid) - axis.leader, 0.0};
}

} // namespace

SnapLines::SnapLines(std::span<const QRectF> rects)
{
    for (const QRectF &rect : rects) {
        const auto across = linesOf(Qt::Horizontal, rect);
        const auto down = linesOf(Qt::Vertical, rect);
        for (std::size_t kind = 0; kind < across.size(); ++kind) {
            m_across[kind].push_back(across[kind]);
            m_down[kind].push_back(down[kind]);
        }
    }
    for (Kinds *kinds : {&m_across, &m_down}) {
        for (auto &lines : *kinds)
            std::sort(lines.begin(), lines.end());
    }
}

std::optional<SnapLines::Hit> SnapLines::nearest(Qt::Orientation direction, const QRectF &rect, double distance) const
{
    std::optional<Hit> best;
    if (!(distance > 0.0))
        return best;
    const Kinds &kinds = direction == Qt::Horizontal ? m_across : m_down;
    const auto own = linesOf(direction, rect);
    for (std::size_t kind = 0; kind < own.size(); ++kind) {
        const auto &lines = kinds[kind];
        const auto after = std::lower_bound(lines.begin(), lines.end(), own[kind]);
        for (auto line = after == lines.begin() ? after : after - 1; line != lines.end() && line <= after; ++line) {
            const double offset = *line - own[kind];
            if (std::abs(offset) <= distance && (!best || isNearer(offset, best->offset)))
                best = Hit{offset, *line};
        }
    }
    return best;
}

SnappedMove snappedMove(const QRectF &set, const QPointF &leader, const QPointF &offset, const SnapLines &lines,
                        const SnapRules &rules)
{
    const QRectF moved = set.translated(offset);
    bool isGuidedAcross = false;
    bool isGuidedDown = false;
    const auto across = snappedOnAxis({Qt::Horizontal, leader.x(), offset.x()}, moved, lines, rules, isGuidedAcross);
    const auto down = snappedOnAxis({Qt::Vertical, leader.y(), offset.y()}, moved, lines, rules, isGuidedDown);

    const QPointF snapped(across.offset, down.offset);
    const QPointF back = offsetInto(rules.plane, set.translated(snapped));
    SnappedMove move{snapped + back, {}};
    if (isGuidedAcross && back.x() == 0.0)
        move.guides.push_back({Qt::Vertical, across.position});
    if (isGuidedDown && back.y() == 0.0)
        move.guides.push_back({Qt::Horizontal, down.position});
    return move;
}

double snappedToGrid(double value, double grid)
{
    return grid > 0.0 ? std::round(value / grid) * grid : value;
}

QPointF offsetInto(const QRectF &plane, const QRectF &rect)
{
    return QPointF(lengthInto(plane.left(), plane.right(), rect.left(), rect.right()),
                   lengthInto(plane.top(), plane.bottom(), rect.top(), rect.bottom()));
}

} // namespace tamble::client
