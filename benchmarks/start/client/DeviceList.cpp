#include "DeviceList.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

InstalledDevice amplifier(int number)
{
    constexpr std::array places{"Stage left", "Stage right", "Balcony", "Foyer", "Delay tower", "Control room"};
    constexpr int unplugged = 22;
    constexpr int warm = 17;
    const int place = number % int(places.size());
    return {QStringLiteral("amplifier"),
            QStringLiteral("Amplifier %1").arg(number + 1),
            QString::fromLatin1(places[std::size_t(place)]),
            11 + number,
            QString::number(4711 + 13 * number),
            number == warm ? 41.5 : 31.5 + 0.5 * (number % 9),
            QStringLiteral("Rack %1\nChecked by the night crew").arg(place + 1),
            number != unplugged};
}

} // namespace

DeviceList::DeviceList(QObject *parent)
    : QAbstractListModel(parent)
{
    constexpr int amplifiers = 24;
    for (int number = 0; number < amplifiers; ++number)
        add(amplifier(number));
    const QString mixer = QStringLiteral("mixer");
    add({mixer, QStringLiteral("FOH mixer"), QStringLiteral("Control room"), 41, QStringLiteral("2601"), 34.0, {}});
    add({mixer, QStringLiteral("Monitor mixer"), QStringLiteral("Stage left"), 42, QStringLiteral("2602"), 35.0, {}});
    add({QStringLiteral("matrix"),
         QStringLiteral("Stage matrix"),
         QStringLiteral("Stage right"),
         51,
         QStringLiteral("1630"),
         33.0,
         {}});
}

void DeviceList::add(const InstalledDevice &installed)
{
    const int row = count();
    auto *device = new Device(installed, this);
    connect(device, &Device::edited, this, [this, row] { Q_EMIT dataChanged(index(row), index(row)); });
    m_devices.append(device);
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
