#pragma once

#include <optional>

namespace tamble::client {

/// What a key goes by that leads to another row.
struct ListPosition
{
    int count = 0;       ///< Of the rows.
    int current = -1;    ///< The current row; -1 for none.
    int former = -1;     ///< Without one: where it was when it left the list; -1 when there has been none.
    int rowsPerPage = 1; ///< How far PageUp and PageDown go.
    bool isVertical = true;
    bool isReversed = false; ///< Whether rows follow each other upwards or to the left.
    bool wraps = false;      ///< Whether arrows lead from one end to the other.
};

/// The row to which a key (Qt::Key) leads; none for keys that lead nowhere, and in an empty list. A key that
/// `isRepeated`, since it is held, stops at the end.
std::optional<int> rowByKey(int key, bool isRepeated, const ListPosition &list);

} // namespace tamble::client
