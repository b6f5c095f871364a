#include "RoutingModel.h"

#include "FieldTable.h"
#include "GalleryInstallation.h"

#include <QtQml/QQmlEngine>

namespace {

const ChannelCount matrixChannels = channelCount(DeviceKind::Matrix);

int firstRoute()
{
    static const int field = fieldIndex(u"route1x1", DeviceKind::Matrix);
    return field;
}

FieldPlace crosspoint(int input, int output)
{
    return {GalleryInstallation::matrix(), firstRoute() + input * matrixChannels.outputs + output};
}

} // namespace

void RoutingModel::route(int input, int output, bool routed)
{
    if (m_installation && hasIndex(input, output))
        m_installation->request(
            {{crosspoint(input, output), routed}},
            (routed ? tr("%1 to %2") : tr("%1 no longer to %2")).arg(inputs().at(input), outputs().at(output)));
}

int RoutingModel::rowCount(const QModelIndex &parent) const
{
    return m_installation && !parent.isValid() ? matrixChannels.inputs : 0;
}

int RoutingModel::columnCount(const QModelIndex &parent) const
{
    return m_installation && !parent.isValid() ? matrixChannels.outputs : 0;
}

QVariant RoutingModel::data(const QModelIndex &index, int role) const
{
    if (!m_installation || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const InstallationClient &client = m_installation->client();
    const FieldPlace place = crosspoint(index.row(), index.column());
    switch (role) {
    case RoutedRole:
        return client.error(place).isEmpty() ? client.shown(place) : client.said(place);
    case ConfirmedRole:
        return client.isConfirmed(place);
    case RefusalRole:
        return client.error(place);
    default:
        return {};
    }
}

QHash<int, QByteArray> RoutingModel::roleNames() const
{
    return {{RoutedRole, "routed"}, {ConfirmedRole, "confirmed"}, {RefusalRole, "refusal"}};
}

void RoutingModel::componentComplete()
{
    beginResetModel();
    m_installation = GalleryInstallation::create(qmlEngine(this), nullptr);
    endResetModel();
    connect(&m_installation->client(), &InstallationClient::fieldChanged, this, &RoutingModel::tellField);
    Q_EMIT inputsChanged();
    Q_EMIT outputsChanged();
}

QStringList RoutingModel::names(Qt::Orientation orientation) const
{
    QStringList names;
    if (!m_installation)
        return names;
    const bool isInput = orientation == Qt::Vertical;
    const QString pattern = isInput ? QStringLiteral("input%1Name") : QStringLiteral("output%1Name");
    for (int i = 1; i <= (isInput ? matrixChannels.inputs : matrixChannels.outputs); ++i) {
        const int field = fieldIndex(pattern.arg(i), DeviceKind::Matrix);
        names.append(m_installation->client().shown(GalleryInstallation::matrix(), field).toString());
    }
    return names;
}

void RoutingModel::tellField(int device, int field)
{
    if (device != GalleryInstallation::matrix())
        return;
    const int route = field - firstRoute();
    if (route >= 0 && route < matrixChannels.inputs * matrixChannels.outputs) {
        const QModelIndex changed = index(route / matrixChannels.outputs, route % matrixChannels.outputs);
        Q_EMIT dataChanged(changed, changed);
    } else if (deviceFields(DeviceKind::Matrix).at(field).name.endsWith(u"Name")) {
        Q_EMIT inputsChanged();
        Q_EMIT outputsChanged();
    }
}
