#pragma once

#include "SimulatedNetwork.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

/// The client's picture of the devices: what they said last, what they were asked for, and what became of that.
class InstallationClient : public QObject
{
    Q_OBJECT

public:
    /// From this temperature on, in °C, a device has an alarm.
    static constexpr double hot = 40.0;

    /// Knows the devices as they are at this moment.
    InstallationClient(EventQueue &queue, const InstalledDevices &devices, SimulatedNetwork &network);

    int deviceCount() const { return int(m_devices.size()); }
    DeviceKind kind(int device) const { return m_devices[device].kind; }
    bool isOnline(int device) const { return m_devices[device].isOnline; }
    /// What is wrong with a device, for people: that it is off, or too hot. Empty when nothing is.
    QString alarm(int device) const;
    QString name(int device) const { return said(device, fieldIndex(u"name")).toString(); }
    /// A field for people, a channel's by the name of the channel: "Kick gain".
    QString title(int device, int field) const;
    /// What the device said last.
    const QVariant &said(int device, int field) const { return m_devices[device].said.at(field); }
    /// What a field is to show: the value asked for while that waits or has failed, else what the device said last.
    QVariant shown(int device, int field) const;
    const QVariant &said(FieldPlace place) const { return said(place.device, place.field); }
    QVariant shown(FieldPlace place) const { return shown(place.device, place.field); }
    /// Whether every request about the field is answered or given up.
    bool isConfirmed(int device, int field) const { return requested(device, field).open == 0; }
    bool isConfirmed(FieldPlace place) const { return isConfirmed(place.device, place.field); }
    /// Why the last request failed, for people; empty when it did not.
    QString error(int device, int field) const { return requested(device, field).error; }
    QString error(FieldPlace place) const { return error(place.device, place.field); }

    /// Asks a device to take a value; the answer comes later. A device that is known to be off is not asked.
    void request(int device, int field, const QVariant &value);
    /// Forgets a failed request.
    void dismiss(int device, int field);

Q_SIGNALS:
    /// Anything about a field is different.
    void fieldChanged(int device, int field);
    void onlineChanged(int device);
    /// A device has refused a request, or has not answered it.
    void requestFailed(int device, int field, const QString &reason);
    /// A device says something new that it was not asked for.
    void changedElsewhere(int device, int field);

private:
    /// What was asked of a field.
    struct Requested
    {
        QVariant value{}; ///< invalid when nothing waits and nothing failed
        QString error{};
        int last = 0;
        int open = 0;
    };
    struct DeviceState
    {
        DeviceKind kind;
        QVariantList said;
        QList<int> revisions;
        QHash<int, Requested> requested{}; ///< by fields that something was asked of
        bool isOnline = true;
    };
    void fail(int device, int field, const QString &reason);
    bool forget(int device, int field);
    Requested requested(int device, int field) const { return m_devices[device].requested.value(field); }
    Requested &requested(int device, int field) { return m_devices[device].requested[field]; }

    void take(const ValuesSaid &message);
    void take(const RequestAnswered &message);
    void take(const PresenceSaid &message);
    bool learn(const ValuesSaid &message, const FieldChange &change);
    void giveUp(int request);
    void conclude(int request, const FieldPlace &open, const QString &reason);

    EventQueue &m_queue;
    SimulatedNetwork &m_network;
    QList<DeviceState> m_devices;
    QHash<int, FieldPlace> m_open;
    int m_lastRequest = 0;
};
