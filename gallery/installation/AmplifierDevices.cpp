#include "AmplifierDevices.h"

#include "FieldRules.h"
#include "NetworkSources.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

QString objectionText(const char *text)
{
    return QCoreApplication::translate("AmplifierDevices", text);
}

const char *const places[]{"Stage left", "Stage right", "Balcony", "Foyer", "Delay tower", "Control room"};

AmplifierRecord installed(int device)
{
    const auto field = [](const QString &name) { return fieldIndex(name); };
    const int place = device % int(std::size(places));
    AmplifierRecord record;
    record.write(field(QStringLiteral("name")), QStringLiteral("Amplifier %1").arg(device + 1));
    record.write(field(QStringLiteral("location")), QString::fromLatin1(places[place]));
    record.write(field(QStringLiteral("ipAddress")), QStringLiteral("192.168.10.%1").arg(11 + device));
    record.write(field(QStringLiteral("subnetMask")), QStringLiteral("255.255.255.0"));
    record.write(field(QStringLiteral("gateway")), QStringLiteral("192.168.10.1"));
    record.write(field(QStringLiteral("pin")), QStringLiteral("%1").arg(4711 + 13 * device));
    record.write(field(QStringLiteral("temperature")), 31.5 + 0.5 * (device % 9));
    record.write(field(QStringLiteral("notes")), QStringLiteral("Rack %1\nChecked by the night crew").arg(place + 1));
    for (int i = 0; i < inputCount + outputCount; ++i) {
        const bool isInput = i < inputCount;
        const int number = isInput ? i + 1 : i - inputCount + 1;
        const QString channel = (isInput ? QStringLiteral("input%1") : QStringLiteral("output%1")).arg(number);
        const int source = (device * inputCount + i) % int(networkSources().size());
        record.write(field(channel + QStringLiteral("Name")),
                     (isInput ? QStringLiteral("In %1") : QStringLiteral("Way %1")).arg(number));
        record.write(field(channel + QStringLiteral("Source")),
                     device % 5 == 4 && number == 4 ? 9000 + device : networkSources()[source].id);
        record.write(field(channel + QStringLiteral("Gain")),
                     number == 4 ? -std::numeric_limits<double>::infinity() : -3.0 * i);
        record.write(field(channel + QStringLiteral("DelaySamples")), 48 * place + 12 * i);
    }
    return record;
}

} // namespace

AmplifierDevices::AmplifierDevices(int count)
{
    for (int device = 0; device < count; ++device)
        m_devices.append({installed(device)});
}

DeviceAnswer AmplifierDevices::ask(int device, int field, const QVariant &value)
{
    const Judgement judgement = judgedValue(amplifierFields().at(field), value, isClamping(device));
    if (!judgement.reason.isEmpty())
        return {judgement.reason, {}};
    if (const QString reason = objection(device, field, judgement.value); !reason.isEmpty())
        return {reason, {}};
    return {{}, m_devices[device].record.write(field, judgement.value)};
}

QList<FieldChange> AmplifierDevices::measure(int device, double temperature)
{
    return m_devices[device].record.write(fieldIndex(u"temperature"), temperature);
}

QString AmplifierDevices::objection(int device, int field, const QVariant &value) const
{
    const AmplifierRecord &record = m_devices[device].record;
    const QString &name = amplifierFields().at(field).name;
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

bool AmplifierDevices::hasOtherTheAddress(int device, const QVariant &address) const
{
    const int field = fieldIndex(u"ipAddress");
    for (int other = 0; other < count(); ++other) {
        if (other != device && m_devices[other].record.read(field) == address)
            return true;
    }
    return false;
}
