#include "DeviceListModel.h"

#include "FieldTable.h"
#include "InstallationClient.h"

#include <utility>

namespace {

/// Fields follow behind, in the order that they have in an amplifier.
enum Role : int { DeviceRole = Qt::UserRole, KindRole, OnlineRole, AlarmRole, FirstFieldRole };

QString kindName(DeviceKind kind)
{
    switch (kind) {
    case DeviceKind::Mixer:
        return QStringLiteral("mixer");
    case DeviceKind::Matrix:
        return QStringLiteral("matrix");
    default:
        return QStringLiteral("amplifier");
    }
}

} // namespace

DeviceListModel::DeviceListModel(InstallationClient &client, int count, QObject *parent)
    : QAbstractListModel(parent)
    , m_client(client)
    , m_count(count)
{
    connect(&client, &InstallationClient::fieldChanged, this, &DeviceListModel::tellField);
    connect(&client, &InstallationClient::onlineChanged, this, [this](int device) {
        if (device >= m_count)
            return;
        Q_EMIT dataChanged(index(device), index(device), {OnlineRole, AlarmRole});
        countAlarms();
    });
    countAlarms();
}

int DeviceListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant DeviceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int device = index.row();
    switch (role) {
    case DeviceRole:
        return device;
    case KindRole:
        return kindName(m_client.kind(device));
    case OnlineRole:
        return m_client.isOnline(device);
    case AlarmRole:
        return m_client.alarm(device);
    default:
        const int field = fieldOfRole(device, role);
        return field >= 0 ? m_client.shown(device, field) : QVariant();
    }
}

bool DeviceListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const int field = fieldOfRole(index.row(), role);
    if (field < 0)
        return false;
    Q_EMIT requested(index.row(), field, value);
    return true;
}

QHash<int, QByteArray> DeviceListModel::roleNames() const
{
    QHash<int, QByteArray> names{
        {DeviceRole, "device"}, {KindRole, "kind"}, {OnlineRole, "online"}, {AlarmRole, "alarm"}};
    const QList<FieldSpec> &fields = deviceFields();
    for (int field = 0; field < int(fields.size()); ++field)
        names.insert(FirstFieldRole + field, fields[field].name.toLatin1());
    return names;
}

/// −1 for a role that is no field of the device.
int DeviceListModel::fieldOfRole(int device, int role) const
{
    const QList<FieldSpec> &fields = deviceFields();
    const int field = role == Qt::DisplayRole ? fieldIndex(u"name") : role - FirstFieldRole;
    return field >= 0 && field < int(fields.size()) ? fieldIndex(fields[field].name, m_client.kind(device)) : -1;
}

void DeviceListModel::tellField(int device, int field)
{
    if (device >= m_count)
        return;
    const QString &name = deviceFields(m_client.kind(device)).at(field).name;
    const int ofAmplifier = fieldIndex(name);
    if (ofAmplifier < 0)
        return;
    QList<int> roles{FirstFieldRole + ofAmplifier};
    if (name == u"name")
        roles.append(Qt::DisplayRole);
    else if (name == u"temperature")
        roles.append(AlarmRole);
    Q_EMIT dataChanged(index(device), index(device), roles);
    if (roles.contains(AlarmRole))
        countAlarms();
}

void DeviceListModel::countAlarms()
{
    int alarms = 0;
    for (int device = 0; device < m_count; ++device)
        alarms += m_client.alarm(device).isEmpty() ? 0 : 1;
    if (std::exchange(m_alarms, alarms) != alarms)
        Q_EMIT alarmsChanged();
}
