#include "SourceListModel.h"

#include "NetworkSources.h"

int SourceListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(networkSources().size()) + 1;
}

QVariant SourceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NetworkSource source = index.row() == 0 ? NetworkSource{0, tr("None")} : networkSources()[index.row() - 1];
    if (role == Qt::UserRole)
        return source.id;
    return role == Qt::DisplayRole ? source.name : QVariant();
}

QHash<int, QByteArray> SourceListModel::roleNames() const
{
    return {{Qt::UserRole, "sourceId"}, {Qt::DisplayRole, "name"}};
}
