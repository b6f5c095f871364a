#pragma once

#include "DeviceRecord.h"

#include <QtCore/QString>

/// What a device says to a request.
struct DeviceAnswer
{
    /// Why the device refuses, for people; empty when it has taken the value, or one of its own in its place.
    QString reason;
    /// What has changed by it.
    QList<FieldChange> changes;
};

constexpr int amplifierCount = 24;
constexpr int mixerCount = 2;

/// The devices themselves: 24 amplifiers, two mixers and a matrix, in this order. Those with the numbers 0, 3, 6, …
/// clamp when they are told to.
class InstalledDevices
{
public:
    /// Devices as an installer leaves them: named, addressed, with a few sources that nobody knows any more.
    InstalledDevices();

    int count() const { return int(m_devices.size()); }
    DeviceKind kind(int device) const { return m_devices[device].record.kind(); }
    const DeviceRecord &record(int device) const { return m_devices[device].record; }
    bool isOnline(int device) const { return m_devices[device].isOnline; }
    void setOnline(int device, bool online) { m_devices[device].isOnline = online; }
    /// Whether every third device clamps instead of refusing; see `judgedValue`. Off at first.
    void setClamping(bool clamping) { m_isClamping = clamping; }

    /// Asks a device to take a value. An address that another device has is refused, and all of them are under DHCP.
    DeviceAnswer ask(int device, int field, const QVariant &value);
    /// What a device measures changes by itself; returns it as `DeviceRecord::write` does.
    QList<FieldChange> measure(int device, double temperature);

private:
    struct Device
    {
        DeviceRecord record;
        bool isOnline = true;
    };

    bool isClamping(int device) const { return m_isClamping && device % 3 == 0; }
    QString objection(int device, int field, const QVariant &value) const;
    bool hasOtherTheAddress(int device, const QVariant &address) const;

    QList<Device> m_devices;
    bool m_isClamping = false;
};
