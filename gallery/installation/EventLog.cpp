#include "EventLog.h"

#include "FieldTable.h"
#include "InstallationClient.h"

#include <utility>

namespace {

constexpr int mostEntries = 2000;

} // namespace

EventLog::EventLog(const InstallationClient &client, QObject *parent)
    : QAbstractListModel(parent)
    , m_client(client)
    , m_alarms(client.deviceCount())
{
    connect(&client, &InstallationClient::onlineChanged, this, &EventLog::notePresence);
    connect(&client, &InstallationClient::requestFailed, this, &EventLog::noteRefusal);
    connect(&client, &InstallationClient::changedElsewhere, this, &EventLog::noteChange);
}

int EventLog::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant EventLog::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = m_entries[m_entries.size() - 1 - index.row()];
    switch (role) {
    case TimeRole:
        return entry.time.toString(QStringLiteral("HH:mm:ss"));
    case DeviceRole:
        return entry.device;
    case KindRole:
        return entry.kind;
    default:
        return role == Qt::DisplayRole ? entry.text : QVariant();
    }
}

QHash<int, QByteArray> EventLog::roleNames() const
{
    return {{TimeRole, "time"}, {DeviceRole, "device"}, {KindRole, "kind"}, {Qt::DisplayRole, "text"}};
}

void EventLog::add(int device, const QString &kind, const QString &text)
{
    if (m_entries.size() == mostEntries) {
        beginRemoveRows({}, mostEntries - 1, mostEntries - 1);
        m_entries.removeFirst();
        endRemoveRows();
    }
    const QString name = device < 0 ? QString() : m_client.name(device);
    beginInsertRows({}, 0, 0);
    m_entries.append({m_clock.isValid() ? m_clock : QDateTime::currentDateTime(), name, kind, text});
    endInsertRows();
}

void EventLog::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void EventLog::notePresence(int device)
{
    const bool isOnline = m_client.isOnline(device);
    add(device, QStringLiteral("presence"), isOnline ? tr("is back on the network") : tr("has left the network"));
}

void EventLog::noteRefusal(int device, int field, const QString &reason)
{
    add(device, QStringLiteral("refusal"), QStringLiteral("%1: %2").arg(m_client.title(device, field), reason));
}

void EventLog::noteChange(int device, int field)
{
    const FieldSpec &spec = deviceFields(m_client.kind(device)).at(field);
    if (spec.kind != ValueKind::Reading) {
        // One of the two that hold the same time is enough.
        if (spec.storedAs < 0)
            add(device, QStringLiteral("network"),
                tr("%1 changed by another client").arg(m_client.title(device, field)));
        return;
    }
    const QString alarm = m_client.alarm(device);
    const bool wasAlarm = !std::exchange(m_alarms[device], alarm).isEmpty();
    if (wasAlarm == !alarm.isEmpty())
        return;
    add(device, QStringLiteral("alarm"), alarm.isEmpty() ? tr("has cooled down") : tr("is too hot: %1").arg(alarm));
}
