#include "accordion/InsertionPlace.h"

#include <cmath>

namespace tamble::client {

std::optional<InsertionPlace> insertionPlace(std::span<const RowSpan> rows, double y)
{
    std::optional<InsertionPlace> nearest;
    const auto consider = [&nearest, y](int gap, double edge) {
        if (!nearest || std::abs(edge - y) < std::abs(nearest->y - y))
            nearest = InsertionPlace{gap, edge};
    };
    for (const RowSpan &row : rows) {
        consider(row.index, row.top);
        consider(row.index + 1, row.bottom);
    }
    return nearest;
}

int movedTo(int from, int gap)
{
    return gap > from ? gap - 1 : gap;
}

} // namespace tamble::client
