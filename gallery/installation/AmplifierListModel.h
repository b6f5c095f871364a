#pragma once

#include <QtCore/QAbstractListModel>

class InstallationClient;

/// The amplifiers as the client sees them, one a row. Every field is a role by its own name and holds what is to be
/// shown; "device" is the number of the device, "online" whether it is there. Writing a role sends a request.
class AmplifierListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    AmplifierListModel(InstallationClient &client, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// A row was written to: a request to make.
    void requested(int device, int field, const QVariant &value);

private:
    InstallationClient &m_client;
};
