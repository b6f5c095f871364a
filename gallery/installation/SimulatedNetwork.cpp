#include "SimulatedNetwork.h"

#include "InstalledDevices.h"

#include <QtCore/QCoreApplication>

SimulatedNetwork::SimulatedNetwork(EventQueue &queue, InstalledDevices &devices, unsigned seed)
    : m_queue(queue)
    , m_devices(devices)
    , m_random(seed)
{}

void SimulatedNetwork::setBehaviour(const NetworkBehaviour &behaviour)
{
    m_behaviour = bounded(behaviour);
    m_devices.setClamping(behaviour.clamping);
}

void SimulatedNetwork::send(int request, int device, int field, const QVariant &value)
{
    const qint64 delay = oneWay();
    if (!isLost())
        m_queue.after(delay, [=, this] { arrive(request, device, field, value); });
}

void SimulatedNetwork::editElsewhere(int device, int field, const QVariant &value)
{
    if (m_devices.isOnline(device))
        tell(device, m_devices.ask(device, field, value).changes);
}

void SimulatedNetwork::measure(int device, double temperature)
{
    if (m_devices.isOnline(device))
        tell(device, m_devices.measure(device, temperature));
}

void SimulatedNetwork::dropOut(int device, int ms)
{
    if (!m_devices.isOnline(device))
        return;
    setOnline(device, false);
    m_queue.after(ms, [=, this] {
        setOnline(device, true);
        tell(device, m_devices.record(device).all());
    });
}

qint64 SimulatedNetwork::oneWay()
{
    return m_behaviour.latency / 2 + qint64(m_random.between(0.0, m_behaviour.jitter));
}

void SimulatedNetwork::arrive(int request, int device, int field, const QVariant &value)
{
    if (!m_devices.isOnline(device))
        return;
    // Of what is asked of a field, the last counts, in whatever order it arrives.
    const int stored = deviceFields(m_devices.kind(device)).at(field).storedAs;
    int &newest = m_newestRequest[{device, stored < 0 ? field : stored}];
    if (request < newest) {
        answer(request, device, field, {});
        return;
    }
    newest = request;
    if (m_random.chance(m_behaviour.refusals)) {
        answer(request, device, field, QCoreApplication::translate("SimulatedNetwork", "The device is busy"));
        return;
    }
    const DeviceAnswer said = m_devices.ask(device, field, value);
    tell(device, said.changes);
    answer(request, device, field, said.reason);
}

void SimulatedNetwork::answer(int request, int device, int field, const QString &reason)
{
    const RequestAnswered message{
        request, reason, {device, ++m_revision, {{field, m_devices.record(device).read(field)}}}};
    const qint64 delay = oneWay();
    if (!isLost())
        m_queue.after(delay, [=, this] { deliver(message); });
}

void SimulatedNetwork::tell(int device, const QList<FieldChange> &changes)
{
    if (changes.isEmpty())
        return;
    const ValuesSaid message{device, ++m_revision, changes};
    m_queue.after(oneWay(), [=, this] { deliver(message); });
    if (m_deviceWatcher)
        m_deviceWatcher(device);
}

void SimulatedNetwork::setOnline(int device, bool online)
{
    m_devices.setOnline(device, online);
    // The client notices by a connection, in order: never "gone" behind "back".
    m_queue.after(m_behaviour.latency / 2, [=, this] { deliver(PresenceSaid{device, online}); });
    if (m_deviceWatcher)
        m_deviceWatcher(device);
}

void SimulatedNetwork::deliver(const NetworkMessage &message)
{
    if (m_receiver)
        m_receiver(message);
}
