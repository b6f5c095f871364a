#pragma once

#include "StagePlan.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QHash>
#include <QtCore/QRectF>
#include <QtCore/QVariantMap>
#include <QtQml/qqmlregistration.h>

class EditHistory;
class InstallationClient;

/// Where a block stands, by its row; top left corner, in plane units.
struct StagePlace
{
    int row;
    QPointF place;

    bool operator==(const StagePlace &) const = default;
};
/// In the order of the rows, each once. Steps are kept without end, so this is what a block of a step costs.
using StagePlaces = QList<StagePlace>;

/// The plan of the installation, a block a row: the devices, then the loudspeakers at the amplifiers.
///
/// Roles: "blockId", "title", "kind" (icon of the block), "area" (where in the house), "place" (point, in plane units),
/// "locked", and what the device says: "value" with its bounds "from" and "to", "limit" beyond which it is an alarm,
/// and "valueText"; "status" (icon, or empty), and "alarm" for people, empty when nothing is wrong. A device has its
/// temperature as the value, a loudspeaker the gain of the output that drives it.
class StageModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Exposed by GalleryInstallation")
    /// The plane, with a margin around the blocks as the installer drew them.
    Q_PROPERTY(QRectF area READ area CONSTANT FINAL)
    /// How many blocks there are.
    Q_PROPERTY(int count READ count CONSTANT FINAL)

public:
    enum Role : int {
        IdRole = Qt::UserRole,
        TitleRole,
        KindRole,
        AreaRole,
        PlaceRole,
        LockedRole,
        ValueRole,
        FromRole,
        ToRole,
        LimitRole,
        ValueTextRole,
        StatusRole,
        AlarmRole
    };

    StageModel(const InstallationClient &client, EditHistory &history, QObject *parent);

    QRectF area() const { return stageArea(); }
    int count() const { return int(m_places.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Takes a move of blocks, from id to point, as a step that can be undone. `cause` is what the workspace says.
    Q_INVOKABLE void move(const QVariantMap &before, const QVariantMap &after, const QString &cause);
    /// Puts blocks to places.
    void place(const StagePlaces &places);

    /// The first row behind `row`, and then from the top on, whose title or area has `text`; -1 for none.
    Q_INVOKABLE int nextWith(const QString &text, int row) const;
    /// Likewise with an alarm.
    Q_INVOKABLE int nextAlarm(int row) const;
    /// The id of a row, empty without one; the device of a block, which for a loudspeaker is the amplifier that drives
    /// it, and -1 for an unknown id.
    Q_INVOKABLE QString idOf(int row) const;
    Q_INVOKABLE int deviceOf(const QString &id) const;

private:
    QVariant dataOfDevice(int device, int role) const;
    QVariant dataOfLoudspeaker(const StageBlock &block, int role) const;
    QString titleOf(const StageBlock &block) const;
    QString alarmOf(const StageBlock &block) const;
    /// In dB; off while it is muted.
    double gainOf(const StageBlock &loudspeaker) const;
    bool isMuted(const StageBlock &loudspeaker) const;
    template <typename Fits>
    int nextThat(int row, Fits fits) const;
    StagePlaces rowsOf(const QVariantMap &places) const;
    void tellField(int device, int field);
    void tell(BlockRange rows, const QList<int> &roles);

    const InstallationClient &m_client;
    EditHistory &m_history;
    QList<QPointF> m_places;
};
