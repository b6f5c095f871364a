#pragma once

#include "DeviceRecord.h"
#include "EventQueue.h"
#include "NetworkBehaviour.h"
#include "RandomSource.h"

#include <QtCore/QString>

#include <functional>
#include <map>
#include <utility>
#include <variant>

class InstalledDevices;

/// A device says what it has. Of two messages about a field, the one with the higher revision is newer.
struct ValuesSaid
{
    int device;
    int revision;
    QList<FieldChange> values;
};

/// A device answers a request: with a reason when it refuses, and with what it has now in that field.
struct RequestAnswered
{
    int request;
    QString reason;
    ValuesSaid said;
};

/// A device has left the network or come back.
struct PresenceSaid
{
    int device;
    bool isOnline;
};

using NetworkMessage = std::variant<ValuesSaid, RequestAnswered, PresenceSaid>;

/// The way between a client and the devices: requests there, answers and news back, each with a delay of its own.
/// Requests and answers may get lost; news is only late.
class SimulatedNetwork
{
public:
    SimulatedNetwork(EventQueue &queue, InstalledDevices &devices, unsigned seed);

    const NetworkBehaviour &behaviour() const { return m_behaviour; }
    /// Holds, brought into its bounds, for what is sent from now on.
    void setBehaviour(const NetworkBehaviour &behaviour);
    /// Who gets the messages.
    void setReceiver(std::function<void(const NetworkMessage &)> receiver) { m_receiver = std::move(receiver); }
    /// Told when a device has really changed.
    void setDeviceWatcher(std::function<void(int device)> watcher) { m_deviceWatcher = std::move(watcher); }

    /// Sends a request of the client; `request` comes back with the answer.
    void send(int request, int device, int field, const QVariant &value);
    /// Another client's edit, which reaches the device at once.
    void editElsewhere(int device, int field, const QVariant &value);
    /// A device measures another temperature, in °C.
    void measure(int device, double temperature);
    /// Takes a device off the network for some ms. One that is off already stays as it is.
    void dropOut(int device, int ms);

private:
    qint64 oneWay();
    bool isLost() { return m_random.chance(m_behaviour.loss); }
    void arrive(int request, int device, int field, const QVariant &value);
    void answer(int request, int device, int field, const QString &reason);
    void tell(int device, const QList<FieldChange> &changes);
    void setOnline(int device, bool online);
    void deliver(const NetworkMessage &message);

    EventQueue &m_queue;
    InstalledDevices &m_devices;
    RandomSource m_random;
    NetworkBehaviour m_behaviour;
    std::function<void(const NetworkMessage &)> m_receiver;
    std::function<void(int)> m_deviceWatcher;
    std::map<std::pair<int, int>, int> m_newestRequest; ///< of a device and its field
    int m_revision = 0;
};
