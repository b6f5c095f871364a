#pragma once

#include <optional>
#include <span>

namespace tamble::client {

/// A row of a list on the screen: its number in the list, and its upper and lower edge.
struct RowSpan
{
    int index = 0;
    double top = 0.0;
    double bottom = 0.0;
};

/// Where something dragged would be put in.
struct InsertionPlace
{
    int gap = 0;    ///< Number of the row that would follow it; that of the last one plus 1 for the end.
    double y = 0.0; ///< The edge that is meant.

    bool operator==(const InsertionPlace &) const = default;
};

/// The edge of a row that is nearest to the height `y`. The rows, from above, need not touch each other; none for none.
std::optional<InsertionPlace> insertionPlace(std::span<const RowSpan> rows, double y);

/// Number that the row `from` has once it is moved into a gap, as in ListModel.move(); `from` itself for the gaps
/// beside it.
int movedTo(int from, int gap);

} // namespace tamble::client
