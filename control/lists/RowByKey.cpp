#include "lists/RowByKey.h"

#include <QtCore/Qt>

#include <algorithm>
#include <cstdlib>

namespace tamble::client {

namespace {

/// How many rows further; 0 for keys that do not go by steps.
int stepsOf(int key, const ListPosition &list)
{
    const int forth = list.isReversed ? -1 : 1;
    if (key == (list.isVertical ? Qt::Key_Up : Qt::Key_Left))
        return -forth;
    if (key == (list.isVertical ? Qt::Key_Down : Qt::Key_Right))
        return forth;
    if (key == Qt::Key_PageUp)
        return -forth * list.rowsPerPage;
    return key == Qt::Key_PageDown ? forth * list.rowsPerPage : 0;
}

} // namespace

std::optional<int> rowByKey(int key, bool isRepeated, const ListPosition &list)
{
    const int last = list.count - 1;
    if (last < 0)
        return std::nullopt;
    if (key == Qt::Key_Home)
        return 0;
    if (key == Qt::Key_End)
        return last;
    const int steps = stepsOf(key, list);
    if (steps == 0)
        return std::nullopt;
    if (list.current < 0) {
        const int next = list.former < 0 && steps < 0 ? last + 1 : std::max(list.former, 0);
        return std::clamp(steps < 0 ? next + steps : next + steps - 1, 0, last);
    }
    const int target = list.current + steps;
    if (list.wraps && !isRepeated && std::abs(steps) == 1 && (target < 0 || target > last))
        return target < 0 ? last : 0;
    return std::clamp(target, 0, last);
}

} // namespace tamble::client
