#pragma once

#include "bodeplot/handles/FilterHandles.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPointF>

#include <optional>
#include <vector>

namespace tamble::client {

/// The handle that a user holds, with the record it edits.
struct FilterHold
{
    QObject *source = nullptr; ///< Where the record comes from; null for a ready-made one.
    FilterRecord record;
    HandleRelation relation = HandleRelation::Eq;
    FilterRecord before;                ///< The record as it was when the hold began.
    std::optional<QPointF> untoldPoint; ///< Of the handle's last move, when it was told the state before that.
};

/// The records of a curve that a user is editing, one for each handle that is held, and those edited a moment ago.
///
/// What their sources say waits so long: a device confirms a drag late, and a handle must not jump back to old values
/// under the pointer.
class FilterHolds : public QObject
{
    Q_OBJECT

public:
    const std::vector<FilterHold> &all() const { return m_holds; }
    /// The hold of a handle, given by its record and what it edits there; null when it is not held.
    FilterHold *find(const FilterRecord &record, HandleRelation relation);

    /// Begins a hold; of a handle that is held already, anew.
    void begin(QObject *source, const FilterRecord &record, HandleRelation relation);
    /// Gives the hold's record, and those of others who hold it too, back what it was; returns the record, a new one.
    FilterRecord restore(FilterHold &hold);
    /// Ends a hold; its source, which says `said` at present, settles for this time, or until it says the edit.
    void end(const FilterHold &hold, const FilterRecord &said, int settleTimeMs);

    /// Whether a handle of a source's record is held: what the source says waits then.
    bool isHeld(const QObject *source) const;
    /// What a source says that is not held; true while it waits all the same.
    bool hears(const QObject *source, const FilterRecord &said);
    /// Puts edited records in place of those of their sources in a new list, and forgets what has no place there.
    void keepIn(FilterRecords &records, const std::vector<QObject *> &sources);

Q_SIGNALS:
    /// The source counts again.
    void settled(QObject *source);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Settling
    {
        QObject *source = nullptr;
        FilterRecord record;
        bool isSaid; ///< Whether the source says the edit, without having answered: it was written there at once.
        QBasicTimer timer;
    };

    std::vector<FilterHold> m_holds;
    std::vector<Settling> m_settling;
};

} // namespace tamble::client
