#pragma once

#include <QtCore/QAbstractListModel>

/// "None", and the sources that are known: roles "sourceId" and "name".
class SourceListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
