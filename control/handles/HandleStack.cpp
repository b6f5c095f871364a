#include "handles/HandleStack.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamble::client {

std::vector<std::size_t> stackAt(const std::vector<HandleSpot> &spots, const QPointF &point)
{
    const auto distance = [&point](const HandleSpot &spot) {
        const QPointF way = spot.centre - point;
        return std::hypot(way.x(), way.y());
    };
    double nearest = std::numeric_limits<double>::infinity();
    for (const HandleSpot &spot : spots)
        nearest = std::min(nearest, distance(spot));

    std::vector<std::size_t> stack;
    for (std::size_t i = 0; i < spots.size(); ++i) {
        if (distance(spots[i]) <= nearest + stackReach)
            stack.push_back(i);
    }
    return stack;
}

int meantHandle(const std::vector<HandleSpot> &spots, const QPointF &point)
{
    int meant = -1;
    for (const std::size_t i : stackAt(spots, point)) {
        if (meant < 0 || spots[i].touched >= spots[std::size_t(meant)].touched)
            meant = int(i);
    }
    return meant;
}

int nextInStack(const std::vector<HandleSpot> &spots, const QPointF &point, int current)
{
    const std::vector<std::size_t> stack = stackAt(spots, point);
    const auto found = std::ranges::find(stack, std::size_t(current));
    if (stack.size() < 2 || found == stack.end())
        return -1;
    return int(found + 1 == stack.end() ? stack.front() : *(found + 1));
}

} // namespace tamble::client
