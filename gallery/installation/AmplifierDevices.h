#pragma once

#include "AmplifierRecord.h"

#include <QtCore/QString>

/// What a device says to a request.
struct DeviceAnswer
{
    /// Why the device refuses, for people; empty when it has taken the value, or one of its own in its place.
    QString reason;
    /// What has changed by it.
    QList<FieldChange> changes;
};

/// The amplifiers themselves. Those with the numbers 0, 3, 6, … clamp when they are told to.
class AmplifierDevices
{
public:
    /// Amplifiers as an installer leaves them: named, addressed, with a few sources that nobody knows any more.
    explicit AmplifierDevices(int count = 24);

    int count() const { return int(m_devices.size()); }
    const AmplifierRecord &record(int device) const { return m_devices[device].record; }
    bool isOnline(int device) const { return m_devices[device].isOnline; }
    void setOnline(int device, bool online) { m_devices[device].isOnline = online; }
    /// Whether every third device clamps instead of refusing; see `judgedValue`. Off at first.
    void setClamping(bool clamping) { m_isClamping = clamping; }

    /// Asks a device to take a value. An address that another device has is refused, and all of them are under DHCP.
    DeviceAnswer ask(int device, int field, const QVariant &value);
    /// What a device measures changes by itself; returns it as `AmplifierRecord::write` does.
    QList<FieldChange> measure(int device, double temperature);

private:
    struct Device
    {
        AmplifierRecord record;
        bool isOnline = true;
    };

    bool isClamping(int device) const { return m_isClamping && device % 3 == 0; }
    QString objection(int device, int field, const QVariant &value) const;
    bool hasOtherTheAddress(int device, const QVariant &address) const;

    QList<Device> m_devices;
    bool m_isClamping = false;
};
