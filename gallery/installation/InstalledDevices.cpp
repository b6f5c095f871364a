#include "InstalledDevices.h"

#include "FieldRules.h"
#include "InstallerSetup.h"

#include <QtCore/QCoreApplication>

namespace {

QString objectionText(const char *text)
{
    return QCoreApplication::translate("InstalledDevices", text);
}

} // namespace

InstalledDevices::InstalledDevices()
{
    for (int number = 0; number < amplifierCount; ++number)
        m_devices.append({installedAmplifier(number)});
    for (int number = 0; number < mixerCount; ++number)
        m_devices.append({installedMixer(number)});
    m_devices.append({installedMatrix()});
}

DeviceAnswer InstalledDevices::ask(int device, int field, const QVariant &value)
{
    const Judgement judgement = judgedValue(deviceFields(kind(device)).at(field), value, isClamping(device));
    if (!judgement.reason.isEmpty())
        return {judgement.reason, {}};
    if (const QString reason = objection(device, field, judgement.value); !reason.isEmpty())
        return {reason, {}};
    return {{}, m_devices[device].record.write(field, judgement.value)};
}

QList<FieldChange> InstalledDevices::measure(int device, double temperature)
{
    return m_devices[device].record.write(fieldIndex(u"temperature"), temperature);
}

QString InstalledDevices::objection(int device, int field, const QVariant &value) const
{
    const DeviceRecord &record = m_devices[device].record;
    const QString &name = deviceFields(kind(device)).at(field).name;
    const bool isNetwork = name == u"ipAddress" || name == u"subnetMask" || name == u"gateway";
    if (isNetwork && record.read(fieldIndex(u"dhcp")).toBool())
        return objectionText("The address comes from DHCP");
    if (name == u"ipAddress" && hasOtherTheAddress(device, value))
        return objectionText("The address is in use");
    if (name == u"gateway") {
        const qint64 mask = addressNumber(record.read(fieldIndex(u"subnetMask")).toString());
        const qint64 own = addressNumber(record.read(fieldIndex(u"ipAddress")).toString());
        if ((addressNumber(value.toString()) & mask) != (own & mask))
            return objectionText("The gateway is outside of the subnet");
    }
    return {};
}

bool InstalledDevices::hasOtherTheAddress(int device, const QVariant &address) const
{
    const int field = fieldIndex(u"ipAddress");
    for (int other = 0; other < count(); ++other) {
        if (other != device && m_devices[other].record.read(field) == address)
            return true;
    }
    return false;
}
