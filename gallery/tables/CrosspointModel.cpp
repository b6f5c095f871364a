#include "CrosspointModel.h"

void CrosspointModel::setSize(int size)
{
    if (size == m_size || size < 0)
        return;
    beginResetModel();
    m_size = size;
    const qsizetype count = size;
    m_routes = QBitArray(count * count);
    for (qsizetype i = 0; i < count; ++i)
        m_routes.setBit(i * count + i);
    endResetModel();
    Q_EMIT sizeChanged();
}

void CrosspointModel::route(int row, int column, bool routed)
{
    const QModelIndex changed = index(row, column);
    if (!changed.isValid())
        return;
    m_routes.setBit(row * m_size + column, routed);
    Q_EMIT dataChanged(changed, changed);
}

QVariant CrosspointModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const bool routed = m_routes.testBit(index.row() * m_size + index.column());
    // Every third input plays.
    return role == SignalRole ? QVariant(index.row() % 3 == 0) : role == RoutedRole ? QVariant(routed) : QVariant();
}

QHash<int, QByteArray> CrosspointModel::roleNames() const
{
    return {{RoutedRole, "routed"}, {SignalRole, "hasSignal"}};
}
