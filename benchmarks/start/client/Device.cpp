#include "Device.h"

#include "DeviceRecord.h"
#include "InstallationClient.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace {

QString kindName(DeviceKind kind)
{
    switch (kind) {
    case DeviceKind::Mixer:
        return QStringLiteral("mixer");
    case DeviceKind::Matrix:
        return QStringLiteral("matrix");
    default:
        return QStringLiteral("amplifier");
    }
}

} // namespace

Device::Device(const DeviceRecord &record, bool online, QObject *parent)
    : QObject(parent)
    , m_kind(kindName(record.kind()))
    , m_isOnline(online)
{
    const auto read = [&](QStringView field) { return record.read(fieldIndex(field, record.kind())); };
    m_name = read(u"name").toString();
    m_location = read(u"location").toString();
    m_dhcp = read(u"dhcp").toBool();
    m_ipAddress = read(u"ipAddress").toString();
    m_subnetMask = read(u"subnetMask").toString();
    m_gateway = read(u"gateway").toString();
    m_pin = read(u"pin").toString();
    m_notes = read(u"notes").toString();
    m_temperature = read(u"temperature").toDouble();
}

QString Device::alarm() const
{
    if (!m_isOnline)
        return tr("Offline");
    return m_temperature < InstallationClient::hot ? QString() : temperatureText();
}

QString Device::condition() const
{
    const QString wrong = alarm();
    return wrong.isEmpty() ? temperatureText() : wrong;
}

QString Device::temperatureText() const
{
    return tr("%1 °C").arg(m_temperature, 0, 'f', 1);
}

bool Device::hasText(const QString &text) const
{
    const QStringList texts{m_name, m_location, m_ipAddress, m_kind, alarm()};
    return std::any_of(texts.begin(), texts.end(),
                       [&](const QString &shown) { return shown.contains(text, Qt::CaseInsensitive); });
}
