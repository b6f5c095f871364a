#include "StageModel.h"

#include "EditHistory.h"
#include "FieldTable.h"
#include "InstallationClient.h"

#include <QtCore/QPointer>
#include <QtCore/QUuid>

#include <algorithm>

namespace {

constexpr double hottest = 60.0;   // °C, end of the bar
constexpr double coldest = 20.0;   // °C
constexpr double quietest = -60.0; // dB
constexpr double loudest = 18.0;   // dB
constexpr double loud = 6.0;       // dB, beyond which an output may clip

/// Blocks from their places to others.
class MoveStep : public EditStep
{
public:
    MoveStep(StageModel &stage, const QHash<int, QPointF> &before, const QHash<int, QPointF> &after,
             const QString &text)
        : EditStep(text, QStringLiteral("stage"))
        , m_stage(&stage)
        , m_before(before)
        , m_after(after)
    {}

    void undo() override { place(m_before); }
    void redo() override { place(m_after); }

protected:
    bool extend(const EditStep &later) override
    {
        m_after = static_cast<const MoveStep &>(later).m_after;
        return m_after != m_before;
    }

private:
    void place(const QHash<int, QPointF> &places)
    {
        if (m_stage)
            m_stage->place(places);
        else
            setObsolete(true);
    }

    QPointer<StageModel> m_stage;
    QHash<int, QPointF> m_before;
    QHash<int, QPointF> m_after;
};

/// The same in every run, so that pages may remember ids.
QString idOfBlock(const StageBlock &block)
{
    const QUuid blocks(QStringLiteral("{8f2ad1c6-0f0b-4d53-9a2e-5b0c1f6e7d41}"));
    const QString name = QStringLiteral("%1.%2.%3").arg(block.device).arg(block.way).arg(block.number);
    return QUuid::createUuidV5(blocks, name).toString(QUuid::WithoutBraces);
}

QString iconOf(DeviceKind kind)
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

/// A field of the output that drives a loudspeaker.
int outputField(const StageBlock &loudspeaker, const char *suffix)
{
    return fieldIndex(QStringLiteral("output%1%2").arg(loudspeaker.way).arg(QLatin1String(suffix)));
}

} // namespace

StageModel::StageModel(const InstallationClient &client, EditHistory &history, QObject *parent)
    : QAbstractListModel(parent)
    , m_client(client)
    , m_history(history)
{
    for (const StageBlock &block : stagePlan()) {
        m_rows.insert(idOfBlock(block), int(m_ids.size()));
        m_ids.append(idOfBlock(block));
        m_places.append(block.place);
    }
    connect(&client, &InstallationClient::fieldChanged, this, &StageModel::tellField);
    connect(&client, &InstallationClient::onlineChanged, this, [this](int device) {
        tell({device, 1}, {StatusRole, AlarmRole});
        if (m_client.kind(device) == DeviceKind::Amplifier)
            tell(loudspeakersOf(device), {StatusRole});
    });
}

int StageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant StageModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = index.row();
    const StageBlock &block = stagePlan()[row];
    switch (role) {
    case IdRole:
        return m_ids[row];
    case Qt::DisplayRole:
    case TitleRole:
        return titleOf(block);
    case AreaRole:
        return m_client.shown(block.device, fieldIndex(u"location"));
    case PlaceRole:
        return m_places[row];
    case LockedRole: // it is built in
        return m_client.kind(block.device) == DeviceKind::Matrix;
    case AlarmRole:
        return alarmOf(block);
    default:
        return block.isLoudspeaker() ? dataOfLoudspeaker(block, role) : dataOfDevice(block.device, role);
    }
}

QHash<int, QByteArray> StageModel::roleNames() const
{
    return {{IdRole, "blockId"},         {TitleRole, "title"},   {KindRole, "kind"},
            {AreaRole, "area"},          {PlaceRole, "place"},   {LockedRole, "locked"},
            {ValueRole, "value"},        {FromRole, "from"},     {ToRole, "to"},
            {LimitRole, "limit"},        {StatusRole, "status"}, {AlarmRole, "alarm"},
            {ValueTextRole, "valueText"}};
}

void StageModel::move(const QVariantMap &before, const QVariantMap &after, const QString &cause)
{
    const QHash<int, QPointF> rows = rowsOf(after);
    if (rows.isEmpty())
        return;
    const QString what =
        rows.size() == 1 ? titleOf(stagePlan()[rows.constBegin().key()]) : tr("%n blocks", nullptr, int(rows.size()));
    const QString text = cause == u"align"        ? tr("%1 aligned")
                         : cause == u"distribute" ? tr("%1 distributed")
                                                  : tr("%1 moved");
    // The workspace tells a gesture when it is over.
    m_history.finish();
    m_history.take(new MoveStep(*this, rowsOf(before), rows, text.arg(what)));
}

void StageModel::place(const QHash<int, QPointF> &places)
{
    QList<int> changed;
    for (auto block = places.constBegin(); block != places.constEnd(); ++block) {
        if (m_places[block.key()] == block.value())
            continue;
        m_places[block.key()] = block.value();
        changed.append(block.key());
    }
    std::sort(changed.begin(), changed.end());
    for (qsizetype i = 0; i < changed.size();) {
        const qsizetype begin = i;
        while (++i < changed.size() && changed[i] == changed[i - 1] + 1) {
        }
        tell({changed[begin], int(i - begin)}, {PlaceRole});
    }
}

int StageModel::nextWith(const QString &text, int row) const
{
    if (text.isEmpty())
        return -1;
    return nextThat(row, [&](const QModelIndex &block) {
        return block.data(TitleRole).toString().contains(text, Qt::CaseInsensitive) ||
               block.data(AreaRole).toString().contains(text, Qt::CaseInsensitive);
    });
}

int StageModel::nextAlarm(int row) const
{
    return nextThat(row, [](const QModelIndex &block) { return !block.data(AlarmRole).toString().isEmpty(); });
}

template <typename Fits>
int StageModel::nextThat(int row, Fits fits) const
{
    const int begin = row >= 0 && row < count() ? row : count() - 1;
    for (int i = 1; i <= count(); ++i) {
        const int candidate = (begin + i) % count();
        if (fits(index(candidate)))
            return candidate;
    }
    return -1;
}

QString StageModel::idOf(int row) const
{
    return m_ids.value(row);
}

int StageModel::deviceOf(const QString &id) const
{
    const int row = m_rows.value(id, -1);
    return row >= 0 && !stagePlan()[row].isLoudspeaker() ? stagePlan()[row].device : -1;
}

QVariant StageModel::dataOfDevice(int device, int role) const
{
    const auto temperature = [&] { return m_client.said(device, fieldIndex(u"temperature")).toDouble(); };
    switch (role) {
    case KindRole:
        return iconOf(m_client.kind(device));
    case ValueRole:
        return temperature();
    case FromRole:
        return coldest;
    case ToRole:
        return hottest;
    case LimitRole:
        return InstallationClient::hot;
    case ValueTextRole:
        return tr("%1 °C").arg(temperature(), 0, 'f', 1);
    case StatusRole:
        return !m_client.isOnline(device)          ? QStringLiteral("offline")
               : !m_client.alarm(device).isEmpty() ? QStringLiteral("warning")
                                                   : QString();
    default:
        return {};
    }
}

QVariant StageModel::dataOfLoudspeaker(const StageBlock &block, int role) const
{
    const auto gain = [&] {
        return isMuted(block) ? gainOff : m_client.said(block.device, outputField(block, "Gain")).toDouble();
    };
    switch (role) {
    case KindRole:
        return QStringLiteral("loudspeaker");
    case ValueRole:
        return gain();
    case FromRole:
        return quietest;
    case ToRole:
        return loudest;
    case LimitRole:
        return loud;
    case ValueTextRole:
        return gain() == gainOff ? tr("off") : tr("%1 dB").arg(gain(), 0, 'f', 1);
    case StatusRole:
        return !m_client.isOnline(block.device) ? QStringLiteral("offline")
               : isMuted(block)                 ? QStringLiteral("mute")
                                                : QString();
    default:
        return {};
    }
}

/// A loudspeaker is called after its amplifier, the output and its number there.
QString StageModel::titleOf(const StageBlock &block) const
{
    return block.isLoudspeaker() ? QStringLiteral("%1.%2.%3").arg(block.device + 1).arg(block.way).arg(block.number)
                                 : m_client.name(block.device);
}

QString StageModel::alarmOf(const StageBlock &block) const
{
    if (!block.isLoudspeaker())
        return m_client.alarm(block.device);
    const bool isLoud = !isMuted(block) && m_client.said(block.device, outputField(block, "Gain")).toDouble() > loud;
    return isLoud ? tr("Too loud") : QString();
}

bool StageModel::isMuted(const StageBlock &loudspeaker) const
{
    return m_client.said(loudspeaker.device, fieldIndex(u"mute")).toBool() ||
           m_client.said(loudspeaker.device, outputField(loudspeaker, "Mute")).toBool();
}

/// Without those that nobody knows.
QHash<int, QPointF> StageModel::rowsOf(const QVariantMap &places) const
{
    QHash<int, QPointF> rows;
    for (auto place = places.constBegin(); place != places.constEnd(); ++place) {
        if (const auto row = m_rows.constFind(place.key()); row != m_rows.constEnd())
            rows.insert(*row, place.value().toPointF());
    }
    return rows;
}

void StageModel::tellField(int device, int field)
{
    const DeviceKind kind = m_client.kind(device);
    const bool isAmplifier = kind == DeviceKind::Amplifier;
    const QString &name = deviceFields(kind).at(field).name;
    const QList<int> gainRoles{ValueRole, ValueTextRole, StatusRole, AlarmRole};
    if (name == u"name") {
        tell({device, 1}, {TitleRole, Qt::DisplayRole});
    } else if (name == u"temperature") {
        tell({device, 1}, {ValueRole, ValueTextRole, StatusRole, AlarmRole});
    } else if (name == u"location") {
        tell({device, 1}, {AreaRole});
        if (isAmplifier)
            tell(loudspeakersOf(device), {AreaRole});
    } else if (isAmplifier && name == u"mute") {
        tell(loudspeakersOf(device), gainRoles);
    } else if (isAmplifier && name.startsWith(u"output") && (name.endsWith(u"Gain") || name.endsWith(u"Mute"))) {
        tell(loudspeakersOf(device, name[6].digitValue()), gainRoles);
    }
}

void StageModel::tell(BlockRange rows, const QList<int> &roles)
{
    Q_EMIT dataChanged(index(rows.first), index(rows.first + rows.count - 1), roles);
}
