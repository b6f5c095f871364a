#include "models/RowOrder.h"

#include <algorithm>

namespace tamble::client {

void RowOrder::setRole(int role, bool isUsable)
{
    if (role != m_role)
        m_keys.clear();
    m_role = role;
    m_hasRole = isUsable;
}

void RowOrder::setKeyOrder(const KeyOrder &order)
{
    m_order = order;
    m_keys.clear();
}

int RowOrder::compare(const QModelIndex &left, const QModelIndex &right)
{
    if (left.column() != 0 || left.parent().isValid())
        return m_order.compare(keyOf(left), keyOf(right));
    m_keys.reserve(std::max(left.row(), right.row()) + 1);
    const SortKey &a = m_keys.at(left.row(), [&] { return keyOf(left); });
    const SortKey &b = m_keys.at(right.row(), [&] { return keyOf(right); });
    return m_order.compare(a, b);
}

} // namespace tamble::client
