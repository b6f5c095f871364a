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
        DeviceState known{devices.kind(device), {}, devices.isOnline(device)};
        const int fields = int(deviceFields(known.kind).size());
        known.fields.reserve(fields);
        for (int field = 0; field < fields; ++field)
            known.fields.append({devices.record(device).read(field)});
        m_devices.append(known);
    }
    network.setReceiver(
        [this](const NetworkMessage &message) { std::visit([this](const auto &said) { take(said); }, message); });
}

const QVariant &InstallationClient::shown(int device, int field) const
{
    const FieldState &known = state(device, field);
    return known.asked.isValid() ? known.asked : known.said;
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
    FieldState &known = state(device, field);
    known.asked = value;
    known.lastRequest = ++m_lastRequest;
    if (!isOnline(device)) {
        fail(device, field, tr("The device is not online"));
    } else {
        const int number = m_lastRequest;
        known.error.clear();
        ++known.openRequests;
        m_open.insert(number, {device, field});
        m_network.send(number, device, field, value);
        m_queue.after(m_network.behaviour().timeout, [=, this] { giveUp(number); });
    }
    Q_EMIT fieldChanged(device, field);
}

void InstallationClient::dismiss(int device, int field)
{
    FieldState &known = state(device, field);
    if (known.error.isEmpty())
        return;
    known.error.clear();
    known.asked.clear();
    Q_EMIT fieldChanged(device, field);
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
    FieldState &known = state(message.device, change.field);
    if (message.revision < known.revision)
        return false;
    known.revision = message.revision;
    const bool isDifferent = std::exchange(known.said, change.value) != change.value;
    // News from the device is worth more than a request that failed.
    if (isDifferent && !known.error.isEmpty()) {
        known.error.clear();
        known.asked.clear();
    }
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
    FieldState &known = state(device, field);
    --known.openRequests;
    // The answer to an earlier request says nothing about the one that counts.
    if (request == known.lastRequest) {
        if (reason.isEmpty())
            known.asked.clear();
        fail(device, field, reason);
    }
    Q_EMIT fieldChanged(device, field);
}

/// An empty reason is none.
void InstallationClient::fail(int device, int field, const QString &reason)
{
    state(device, field).error = reason;
    if (!reason.isEmpty())
        Q_EMIT requestFailed(device, field, reason);
}
