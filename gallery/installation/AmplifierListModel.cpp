#include "AmplifierListModel.h"

#include "FieldTable.h"
#include "InstallationClient.h"

namespace {

/// Fields follow behind, in the order of their indices.
enum Role : int { DeviceRole = Qt::UserRole, OnlineRole, FirstFieldRole };

/// −1 for a role that is no field.
int fieldOfRole(int role)
{
    const int field = role == Qt::DisplayRole ? fieldIndex(u"name") : role - FirstFieldRole;
    return field < int(amplifierFields().size()) ? field : -1;
}

} // namespace

AmplifierListModel::AmplifierListModel(InstallationClient &client, QObject *parent)
    : QAbstractListModel(parent)
    , m_client(client)
{
    connect(&client, &InstallationClient::fieldChanged, this, [this](int device, int field) {
        QList<int> roles{FirstFieldRole + field};
        if (field == fieldOfRole(Qt::DisplayRole))
            roles.append(Qt::DisplayRole);
        Q_EMIT dataChanged(index(device), index(device), roles);
    });
    connect(&client, &InstallationClient::onlineChanged, this,
            [this](int device) { Q_EMIT dataChanged(index(device), index(device), {OnlineRole}); });
}

int AmplifierListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_client.deviceCount();
}

QVariant AmplifierListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == DeviceRole)
        return index.row();
    if (role == OnlineRole)
        return m_client.isOnline(index.row());
    const int field = fieldOfRole(role);
    return field >= 0 ? m_client.shown(index.row(), field) : QVariant();
}

bool AmplifierListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int field = fieldOfRole(role);
    if (field < 0 || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    Q_EMIT requested(index.row(), field, value);
    return true;
}

QHash<int, QByteArray> AmplifierListModel::roleNames() const
{
    QHash<int, QByteArray> names{{DeviceRole, "device"}, {OnlineRole, "online"}};
    const QList<FieldSpec> &fields = amplifierFields();
    for (int field = 0; field < int(fields.size()); ++field)
        names.insert(FirstFieldRole + field, fields[field].name.toLatin1());
    return names;
}
