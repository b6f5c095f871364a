#include "DeviceSelection.h"

#include "FieldTable.h"
#include "GalleryInstallation.h"

#include <QtQml/QQmlEngine>

#include <algorithm>
#include <utility>

DeviceSelection::DeviceSelection(QObject *parent)
    : QObject(parent)
{}

void DeviceSelection::setDevices(const QVariantList &devices)
{
    if (devices == m_devices)
        return;
    m_devices = devices;
    findKnown();
    Q_EMIT devicesChanged();
    updateOnline();
}

void DeviceSelection::request(const QString &field, const QVariant &value)
{
    QList<FieldRequest> requests;
    for (const FieldPlace &place : places(field))
        requests.append({place, value});
    if (m_installation)
        m_installation->request(requests);
}

QList<FieldPlace> DeviceSelection::places(const QString &field) const
{
    QList<FieldPlace> places;
    for (const int device : m_known) {
        if (const int index = fieldIndex(field, m_installation->client().kind(device)); index >= 0)
            places.append({device, index});
    }
    return places;
}

// So that what is bound has its values before anything is complete.
void DeviceSelection::classBegin()
{
    m_installation = GalleryInstallation::create(qmlEngine(this), nullptr);
    connect(&m_installation->client(), &InstallationClient::onlineChanged, this, &DeviceSelection::updateOnline);
}

void DeviceSelection::findKnown()
{
    m_known.clear();
    if (!m_installation)
        return;
    for (const QVariant &number : m_devices) {
        bool isNumber = false;
        const int device = number.toInt(&isNumber);
        if (isNumber && device >= 0 && device < m_installation->devices().count() && !m_known.contains(device))
            m_known.append(device);
    }
}

void DeviceSelection::updateOnline()
{
    const bool isOnline = m_installation && !m_known.isEmpty() &&
                          std::all_of(m_known.begin(), m_known.end(),
                                      [this](int device) { return m_installation->client().isOnline(device); });
    if (std::exchange(m_isOnline, isOnline) != isOnline)
        Q_EMIT onlineChanged();
}
