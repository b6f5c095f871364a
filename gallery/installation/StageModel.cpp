#include "StageModel.h"

#include "EditHistory.h"
#include "FieldTable.h"
#include "InstallationClient.h"

#include <QtCore/QPointer>
#include <QtCore/QUuid>

#include <algorithm>
#include <array>
#include <utility>

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
    MoveStep(StageModel &stage, const StagePlaces &before, const StagePlaces &after, const QString &text)
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
    void place(const StagePlaces &places)
    {
        if (m_stage)
            m_stage->place(places);
        else
            setObsolete(true);
    }

    QPointer<StageModel> m_stage;
    StagePlaces m_before;
    StagePlaces m_after;
};

/// The same in every run, so that pages may remember ids: one of the plan's own, with the row in its last two bytes.
QUuid idOfRow(int row)
{
    return {0x8f2ad1c6, 0x0f0b, 0x4d53, 0x9a, 0x2e, 0x5b, 0x0c, 0x1f, 0x6e, uchar(row >> 8), uchar(row)};
}

/// -1 for an unknown id.
int rowOf(const QString &id)
{
    const QUuid uuid(id);
    const int row = (uuid.data4[6] << 8) | uuid.data4[7];
    return row < stagePlan().size() && uuid == idOfRow(row) ? row : -1;
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

/// Fields of an amplifier's output, and all that have to do with the plan, looked up once.
struct OutputFields
{
    explicit OutputFields(int way)
        : gain(fieldIndex(QStringLiteral("output%1Gain").arg(way)))
        , mute(fieldIndex(QStringLiteral("output%1Mute").arg(way)))
    {}

    int gain;
    int mute;
};
struct StageFields
{
    int name = fieldIndex(u"name");
    int location = fieldIndex(u"location");
    int temperature = fieldIndex(u"temperature");
    int mute = fieldIndex(u"mute"); // of amplifiers
    std::array<OutputFields, 4> outputs{OutputFields(1), OutputFields(2), OutputFields(3), OutputFields(4)};
};

const StageFields &fields()
{
    static const StageFields indexes;
    return indexes;
}

} // namespace

StageModel::StageModel(const InstallationClient &client, EditHistory &history, QObject *parent)
    : QAbstractListModel(parent)
    , m_client(client)
    , m_history(history)
{
    m_places.reserve(stagePlan().size());
    for (const StageBlock &block : stagePlan())
        m_places.append(block.place);
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
        return idOf(row);
    case Qt::DisplayRole:
    case TitleRole:
        return titleOf(block);
    case AreaRole:
        return m_client.shown(block.device, fields().location);
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
    const StagePlaces rows = rowsOf(after);
    if (rows.isEmpty())
        return;
    const QString what =
        rows.size() == 1 ? titleOf(stagePlan()[rows.first().row]) : tr("%n blocks", nullptr, int(rows.size()));
    const QString text = cause == u"align"        ? tr("%1 aligned")
                         : cause == u"distribute" ? tr("%1 distributed")
                                                  : tr("%1 moved");
    // The workspace tells a gesture when it is over.
    m_history.finish();
    m_history.take(new MoveStep(*this, rowsOf(before), rows, text.arg(what)));
}

void StageModel::place(const StagePlaces &places)
{
    QList<int> changed;
    for (const auto &[row, place] : places) {
        if (std::exchange(m_places[row], place) != place)
            changed.append(row);
    }
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
    return row >= 0 && row < count() ? idOfRow(row).toString(QUuid::WithoutBraces) : QString();
}

int StageModel::deviceOf(const QString &id) const
{
    const int row = rowOf(id);
    return row >= 0 ? stagePlan()[row].device : -1;
}

QVariant StageModel::dataOfDevice(int device, int role) const
{
    const auto temperature = [&] { return m_client.said(device, fields().temperature).toDouble(); };
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
    switch (role) {
    case KindRole:
        return QStringLiteral("loudspeaker");
    case ValueRole:
        return gainOf(block);
    case FromRole:
        return quietest;
    case ToRole:
        return loudest;
    case LimitRole:
        return loud;
    case ValueTextRole:
        if (const double gain = gainOf(block); gain != gainOff)
            return tr("%1 dB").arg(gain, 0, 'f', 1);
        return tr("off");
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
    return gainOf(block) > loud ? tr("Too loud") : QString();
}

double StageModel::gainOf(const StageBlock &loudspeaker) const
{
    const int field = fields().outputs[std::size_t(loudspeaker.way - 1)].gain;
    return isMuted(loudspeaker) ? gainOff : m_client.said(loudspeaker.device, field).toDouble();
}

bool StageModel::isMuted(const StageBlock &loudspeaker) const
{
    return m_client.said(loudspeaker.device, fields().mute).toBool() ||
           m_client.said(loudspeaker.device, fields().outputs[std::size_t(loudspeaker.way - 1)].mute).toBool();
}

/// Without those that nobody knows.
StagePlaces StageModel::rowsOf(const QVariantMap &places) const
{
    StagePlaces rows;
    rows.reserve(places.size());
    for (auto place = places.constBegin(); place != places.constEnd(); ++place) {
        if (const int row = rowOf(place.key()); row >= 0)
            rows.append({row, place.value().toPointF()});
    }
    std::sort(rows.begin(), rows.end(), [](const StagePlace &a, const StagePlace &b) { return a.row < b.row; });
    return rows;
}

void StageModel::tellField(int device, int field)
{
    const bool isAmplifier = m_client.kind(device) == DeviceKind::Amplifier;
    const QList<int> gainRoles{ValueRole, ValueTextRole, AlarmRole};
    const QList<int> muteRoles = gainRoles + QList<int>{StatusRole};
    if (field == fields().name) {
        tell({device, 1}, {TitleRole, Qt::DisplayRole});
    } else if (field == fields().temperature) {
        tell({device, 1}, {ValueRole, ValueTextRole, StatusRole, AlarmRole});
    } else if (field == fields().location) {
        tell({device, 1}, {AreaRole});
        if (isAmplifier)
            tell(loudspeakersOf(device), {AreaRole});
    } else if (isAmplifier && field == fields().mute) {
        tell(loudspeakersOf(device), muteRoles);
    } else if (isAmplifier) {
        int way = 0;
        for (const auto &[gain, mute] : fields().outputs) {
            ++way;
            if (field == gain || field == mute)
                tell(loudspeakersOf(device, way), field == gain ? gainRoles : muteRoles);
        }
    }
}

void StageModel::tell(BlockRange rows, const QList<int> &roles)
{
    Q_EMIT dataChanged(index(rows.first), index(rows.first + rows.count - 1), roles);
}
