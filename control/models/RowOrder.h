#pragma once

#include "models/SortKey.h"

#include <QtCore/QAbstractItemModel>

namespace tamble::client {

/// Compares rows by a role, and remembers the keys of rows that are not below others.
class RowOrder
{
public:
    void setRole(int role, bool isUsable);
    /// Whether there is a role to compare by.
    bool hasRole() const { return m_hasRole; }
    void setKeyOrder(const KeyOrder &order);
    SortKeys &keys() { return m_keys; }

    /// Negative when `left` comes first, 0 for equals.
    int compare(const QModelIndex &left, const QModelIndex &right);

private:
    SortKey keyOf(const QModelIndex &index) const { return m_order.keyOf(index.data(m_role)); }

    int m_role = Qt::DisplayRole;
    bool m_hasRole = false;
    KeyOrder m_order{KeyOrder::Texts::Natural, Qt::CaseInsensitive};
    SortKeys m_keys;
};

} // namespace tamble::client
