#pragma once

#include "SimulatedNetwork.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

/// The client's picture of the devices: what they said last, what they were asked for, and what became of that.
class InstallationClient : public QObject
{
    Q_OBJECT

public:
    /// Knows the devices as they are at this moment.
    InstallationClient(EventQueue &queue, const AmplifierDevices &devices, SimulatedNetwork &network);

    int deviceCount() const { return int(m_devices.size()); }
    bool isOnline(int device) const { return m_devices[device].isOnline; }
    /// What the device said last.
    const QVariant &said(int device, int field) const { return state(device, field).said; }
    /// What a field is to show: the value asked for while that waits or has failed, else what the device said last.
    const QVariant &shown(int device, int field) const;
    /// Whether every request about the field is answered or given up.
    bool isConfirmed(int device, int field) const { return state(device, field).openRequests == 0; }
    /// Why the last request failed, for people; empty when it did not.
    const QString &error(int device, int field) const { return state(device, field).error; }

    /// Asks a device to take a value; the answer comes later. A device that is known to be off is not asked.
    void request(int device, int field, const QVariant &value);
    /// Forgets a failed request.
    void dismiss(int device, int field);

Q_SIGNALS:
    /// Anything about a field is different.
    void fieldChanged(int device, int field);
    void onlineChanged(int device);

private:
    struct FieldState
    {
        QVariant said;
        int revision = 0;
        QVariant asked{}; ///< invalid when nothing waits and nothing failed
        QString error{};
        int lastRequest = 0;
        int openRequests = 0;
    };
    struct DeviceState
    {
        QList<FieldState> fields;
        bool isOnline = true;
    };
    struct OpenRequest
    {
        int device;
        int field;
    };

    const FieldState &state(int device, int field) const { return m_devices[device].fields[field]; }
    FieldState &state(int device, int field) { return m_devices[device].fields[field]; }

    void take(const ValuesSaid &message);
    void take(const RequestAnswered &message);
    void take(const PresenceSaid &message);
    bool learn(const ValuesSaid &message, const FieldChange &change);
    void giveUp(int request);
    void conclude(int request, const OpenRequest &open, const QString &reason);

    EventQueue &m_queue;
    SimulatedNetwork &m_network;
    QList<DeviceState> m_devices;
    QHash<int, OpenRequest> m_open;
    int m_lastRequest = 0;
};
