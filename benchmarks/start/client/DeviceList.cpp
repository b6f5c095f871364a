#include "DeviceList.h"

#include "InstalledDevices.h"

#include <algorithm>
#include <utility>

DeviceList::DeviceList(QObject *parent)
    : QAbstractListModel(parent)
{
    constexpr int unplugged = 22;
    const InstalledDevices installed;
    for (int number = 0; number < installed.count(); ++number) {
        auto *device = new Device(installed.record(number), number != unplugged, this);
        connect(device, &Device::edited, this, [this, number] { Q_EMIT dataChanged(index(number), index(number)); });
        m_devices.append(device);
    }
}

int DeviceList::alarms() const
{
    return int(std::count_if(m_devices.begin(), m_devices.end(),
                             [](const Device *device) { return !device->alarm().isEmpty(); }));
}

int DeviceList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant DeviceList::data(const QModelIndex &index, int role) const
{
    const bool isKnown = role == Qt::UserRole && checkIndex(index, CheckIndexOption::IndexIsValid);
    return isKnown ? QVariant::fromValue(m_devices.at(index.row())) : QVariant();
}

QHash<int, QByteArray> DeviceList::roleNames() const
{
    return {{Qt::UserRole, "device"}};
}

void DeviceFilter::setText(const QString &text)
{
    if (std::exchange(m_text, text) == text)
        return;
    invalidateFilter();
    Q_EMIT textChanged();
}

void DeviceFilter::setAlarmsOnly(bool alarmsOnly)
{
    if (std::exchange(m_alarmsOnly, alarmsOnly) == alarmsOnly)
        return;
    invalidateFilter();
    Q_EMIT alarmsOnlyChanged();
}

bool DeviceFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const auto *device = sourceModel()->index(row, 0, parent).data(Qt::UserRole).value<Device *>();
    return device->hasText(m_text) && (!m_alarmsOnly || !device->alarm().isEmpty());
}
