#include "Device.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace {

constexpr double hot = 40.0; // °C

} // namespace

Device::Device(const InstalledDevice &installed, QObject *parent)
    : QObject(parent)
    , m_kind(installed.kind)
    , m_name(installed.name)
    , m_location(installed.location)
    , m_ipAddress(QStringLiteral("192.168.10.%1").arg(installed.lastByte))
    , m_subnetMask(QStringLiteral("255.255.255.0"))
    , m_gateway(QStringLiteral("192.168.10.1"))
    , m_pin(installed.pin)
    , m_notes(installed.notes)
    , m_temperature(installed.temperature)
    , m_isOnline(installed.isOnline)
{}

QString Device::alarm() const
{
    if (!m_isOnline)
        return tr("Offline");
    return m_temperature < hot ? QString() : temperatureText();
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
