#include "Amplifier.h"

#include "FieldTable.h"
#include "GalleryInstallation.h"

#include <QtQml/QQmlEngine>

#include <algorithm>
#include <utility>

Amplifier::Amplifier(QObject *parent)
    : QObject(parent)
{}

void Amplifier::setDevices(const QVariantList &devices)
{
    if (devices == m_devices)
        return;
    m_devices = devices;
    findKnown();
    Q_EMIT devicesChanged();
    updateOnline();
}

void Amplifier::request(const QString &field, const QVariant &value)
{
    const int index = fieldIndex(field);
    if (index < 0 || !m_installation)
        return;
    // A handler of the first request may change the selection.
    for (const QList<int> devices = m_known; const int device : devices)
        m_installation->request(device, index, value);
}

void Amplifier::componentComplete()
{
    m_installation = GalleryInstallation::create(qmlEngine(this), nullptr);
    connect(&m_installation->client(), &InstallationClient::onlineChanged, this, &Amplifier::updateOnline);
    findKnown();
    Q_EMIT devicesChanged();
    updateOnline();
}

void Amplifier::findKnown()
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

void Amplifier::updateOnline()
{
    const bool isOnline = m_installation && !m_known.isEmpty() &&
                          std::all_of(m_known.begin(), m_known.end(),
                                      [this](int device) { return m_installation->client().isOnline(device); });
    if (std::exchange(m_isOnline, isOnline) != isOnline)
        Q_EMIT onlineChanged();
}
