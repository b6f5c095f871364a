#include "PresetListModel.h"

#include "GalleryInstallation.h"

#include <algorithm>

namespace {

QList<FieldPlace> storedFields()
{
    const int mixer = GalleryInstallation::firstMixer();
    QList<FieldPlace> places;
    for (int channel = 1; channel <= channelCount(DeviceKind::Mixer).inputs; ++channel) {
        const QString input = "input" + QString::number(channel);
        places.append({mixer, fieldIndex(input + "Gain", DeviceKind::Mixer)});
        places.append({mixer, fieldIndex(input + "Mute", DeviceKind::Mixer)});
    }
    return places;
}

} // namespace

PresetListModel::PresetListModel(GalleryInstallation &installation, QObject *parent)
    : QAbstractListModel(parent)
    , m_installation(installation)
{
    for (const QString &name : {tr("Sound check"), tr("Opening act"), tr("Main act"), tr("Interval")})
        store(name);
    // The opening act is quieter; in the interval nothing but the playback is heard.
    for (FieldRequest &request : m_presets[1].values) {
        if (deviceFields(DeviceKind::Mixer).at(request.place.field).kind == ValueKind::Gain)
            request.value = request.value.toDouble() - 6.0;
    }
    for (FieldRequest &request : m_presets.last().values) {
        const QString &field = deviceFields(DeviceKind::Mixer).at(request.place.field).name;
        if (field.endsWith(u"Mute"))
            request.value = field != u"input11Mute" && field != u"input12Mute";
    }
}

int PresetListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_presets.size());
}

QVariant PresetListModel::data(const QModelIndex &index, int role) const
{
    const bool isName = role == Qt::DisplayRole && checkIndex(index, CheckIndexOption::IndexIsValid);
    return isName ? QVariant(m_presets[index.row()].name) : QVariant();
}

QHash<int, QByteArray> PresetListModel::roleNames() const
{
    return {{Qt::DisplayRole, "name"}};
}

void PresetListModel::store(const QString &name)
{
    Preset preset{name, {}};
    for (const FieldPlace &place : storedFields())
        preset.values.append({place, m_installation.client().shown(place)});
    const auto same =
        std::find_if(m_presets.begin(), m_presets.end(), [&](const Preset &other) { return other.name == name; });
    if (same != m_presets.end()) {
        *same = preset;
        return;
    }
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_presets.append(preset);
    endInsertRows();
}

void PresetListModel::recall(int row)
{
    if (hasRow(row))
        m_installation.request(m_presets[row].values, tr("Preset %1 recalled").arg(m_presets[row].name));
}

void PresetListModel::remove(int row)
{
    if (!hasRow(row))
        return;
    beginRemoveRows({}, row, row);
    m_presets.removeAt(row);
    endRemoveRows();
}

QString PresetListModel::nameAt(int row) const
{
    return hasRow(row) ? m_presets[row].name : QString();
}
