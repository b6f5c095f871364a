#include "workspace/ReadingOrder.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace tamble::client {

std::vector<std::size_t> readingOrder(std::span<const QPointF> corners)
{
    std::vector<std::size_t> order(corners.size());
    std::iota(order.begin(), order.end(), 0);
    const auto place = [&corners](std::size_t i) {
        const QPointF &corner = corners[i];
        return std::tuple(std::floor(corner.y() / readingRowHeight), corner.x(), corner.y(), i);
    };
    std::sort(order.begin(), order.end(), [&place](auto left, auto right) { return place(left) < place(right); });
    return order;
}

} // namespace tamble::client
