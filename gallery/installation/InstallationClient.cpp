#include "InstallationClient.h"

#include "InstalledDevices.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <utility>

InstallationClient::InstallationClient(EventQueue &queue, const InstalledDevices &devices, SimulatedNetwork &network)
    : m_queue(queue)
    , m_network(network)
{
    for (int device = 0; device < devices.count(); ++device) {
        const QVariantList &values = devices.record(device).values();
        m_devices.append({devices.kind(device), values, QList<int>(values.size()), {}, devices.isOnline(device)});
    }
    network.setReceiver(
        [this](const NetworkMessage &message) { std::visit([this](const auto &said) { take(said); }, message); });
}

QVariant InstallationClient::shown(int device, int field) const
{
    const QVariant asked = requested(device, field).value;
    return asked.isValid() ? asked : said(device, field);
}

QString InstallationClient::alarm(int device) const
{
    if (!isOnline(device))
        return tr("Offline");
    const double temperature = said(device, fieldIndex(u"temperature")).toDouble();
    return temperature < hot ? QString() : tr("%1 °C").arg(temperature, 0, 'f', 1);
}

QString InstallationClient::title(int device, int field) const
{
    static const QRegularExpression ofChannel(QStringLiteral("^((?:in|out)put[0-9]+)(?!Name)([A-Z].*)"));
    const QString &name = deviceFields(kind(device)).at(field).name;
    const auto parts = ofChannel.match(name);
    const int nameField = parts.hasMatch() ? fieldIndex(parts.captured(1) + QStringLiteral("Name"), kind(device)) : -1;
    const QString channel = nameField < 0 ? QString() : said(device, nameField).toString();
    return channel.isEmpty() ? fieldTitle(name)
                             : QStringLiteral("%1 %2").arg(channel, fieldTitle(parts.captured(2)).toLower());
}

void InstallationClient::request(int device, int field, const QVariant &value)
{
    Requested &now = requested(device, field);
    now.value = value;
    now.last = ++m_lastRequest;
    if (!isOnline(device)) {
        fail(device, field, tr("The device is not online"));
    } else {
        const int number = m_lastRequest;
        now.error.clear();
        ++now.open;
        m_open.insert(number, {device, field});
        m_network.send(number, device, field, value);
        m_queue.after(m_network.behaviour().timeout, [=, this] { giveUp(number); });
    }
    Q_EMIT fieldChanged(device, field);
}

void InstallationClient::dismiss(int device, int field)
{
    if (forget(device, field))
        Q_EMIT fieldChanged(device, field);
}

/// Returns whether there was a failed request to forget.
bool InstallationClient::forget(int device, int field)
{
    if (error(device, field).isEmpty())
        return false;
    Requested &failed = requested(device, field);
    failed.error.clear();
    failed.value.clear();
    return true;
}

void InstallationClient::take(const ValuesSaid &message)
{
    // A delay comes in samples and in ms, of which one was asked for, and may have been answered already.
    QList<int> news;
    bool wasAsked = false;
    for (const FieldChange &change : message.values) {
        const bool isNew = learn(message, change);
        if (isNew)
            news.append(change.field);
        wasAsked = wasAsked || !isNew || !isConfirmed(message.device, change.field);
    }
    for (const int field : news) {
        Q_EMIT fieldChanged(message.device, field);
        if (!wasAsked)
            Q_EMIT changedElsewhere(message.device, field);
    }
}

void InstallationClient::take(const RequestAnswered &message)
{
    // The request is over before what it led to is told, so that the two are seen as one change.
    if (const auto open = m_open.constFind(message.request); open != m_open.constEnd()) {
        for (const FieldChange &change : message.said.values)
            learn(message.said, change);
        conclude(message.request, *open, message.reason);
    } else {
        take(message.said);
    }
}

void InstallationClient::take(const PresenceSaid &message)
{
    if (std::exchange(m_devices[message.device].isOnline, message.isOnline) != message.isOnline)
        Q_EMIT onlineChanged(message.device);
}

/// What is older than what the client knows already tells it nothing.
bool InstallationClient::learn(const ValuesSaid &message, const FieldChange &change)
{
    DeviceState &known = m_devices[message.device];
    if (message.revision < known.revisions.at(change.field))
        return false;
    known.revisions[change.field] = message.revision;
    const bool isDifferent = std::exchange(known.said[change.field], change.value) != change.value;
    // News from the device is worth more than a request that failed.
    if (isDifferent)
        forget(message.device, change.field);
    return isDifferent;
}

void InstallationClient::giveUp(int request)
{
    if (const auto open = m_open.constFind(request); open != m_open.constEnd())
        conclude(request, *open, tr("The device does not answer"));
}

void InstallationClient::conclude(int request, const FieldPlace &open, const QString &reason)
{
    const auto [device, field] = open;
    m_open.remove(request);
    Requested &now = requested(device, field);
    --now.open;
    // The answer to an earlier request says nothing about the one that counts.
    if (request == now.last) {
        if (reason.isEmpty())
            now.value.clear();
        fail(device, field, reason);
    }
    Q_EMIT fieldChanged(device, field);
}

/// An empty reason is none.
void InstallationClient::fail(int device, int field, const QString &reason)
{
    requested(device, field).error = reason;
    if (!reason.isEmpty())
        Q_EMIT requestFailed(device, field, reason);
}
