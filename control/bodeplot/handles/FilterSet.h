#pragma once

#include "bodeplot/filters/FilterRecords.h"
#include "bodeplot/handles/FilterHandles.h"
#include "bodeplot/handles/HandleRules.h"

#include <QtCore/QPointF>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace tamble::client {

/// What a gesture made of a handle, as it is told to the page.
struct HandleEdit
{
    int record = -1; ///< -1: nothing was changed.
    int handle = -1;
    HandleRelation relation = HandleRelation::Eq;
    double frequencyHz = 0.0;
    double gainDb = 0.0;
    double quality = 0.0;
    /// Where the handle of an asymmetric band goes when the page has been told, see FilterSet::follow().
    std::optional<QPointF> follows;
    QString problem; ///< Why nothing was changed, where that is worth a line in the log.

    explicit operator bool() const { return record >= 0; }
};

/// The filters of a curve and their handles, and what gestures make of them.
class FilterSet
{
public:
    const FilterRecords &records() const { return m_records; }
    const std::vector<FilterHandle> &handles() const { return m_handles; }
    const PlotAxes &axes() const { return m_axes; }

    /// Takes new records and makes their handles anew; returns a log line for each record without one.
    QStringList setRecords(FilterRecords records);
    /// Exchanges one record; returns a log line when it has no handle, unless the old one had none for that reason.
    QString setRecord(int position, FilterRecord record);
    /// Moves all handles to where their filters are in another frame.
    void setAxes(const PlotAxes &axes);

    /// Record of a handle, -1 for an index without handle.
    int recordOf(int handle) const;
    /// Relation of a handle, none for an index without handle.
    std::optional<HandleRelation> relationOf(int handle) const;
    /// First handle of a record, -1 for none.
    int firstHandleOf(int record) const;

    /// Drags a handle to a normalised point and stores what follows in its record. An asymmetric band follows its
    /// handle one step late, as its devices do: its frequency is taken from where the handle was, the gain that is told
    /// is the one before the move, and both handles stay until follow().
    HandleEdit move(int handle, const QPointF &wanted);
    /// Moves both handles of an asymmetric band, and its gain, to what is left of a move; returns whether that is
    /// another place. Any other edit, and one whose handle is not there any more, moves nothing.
    bool follow(const HandleEdit &edit);
    /// The other handle of an asymmetric band, -1 for a handle without one.
    int partnerOf(int handle) const;
    /// Sets the gain of a handle's band to 0 dB, wherever that is in the frame; nothing for one without gain.
    HandleEdit level(int handle);
    /// Drags the Q of a handle's band; see draggedQuality().
    HandleEdit changeQuality(int handle, double baseQuality, double change);
    /// What the record of a handle says now, as an edit; nothing for an index without handle.
    HandleEdit current(int handle) const;

private:
    QString indexProblem(const char *method, int handle) const;
    QStringList makeHandles();
    void placeHandles();

    HandleEdit drag(int index, EqFilterExtended &record, const QPointF &wanted);
    HandleEdit drag(int index, AsymmetricEqFilterExtended &record, const QPointF &wanted);
    HandleEdit drag(int index, XOverFilterExtended &record, const QPointF &wanted);
    HandleEdit drag(int index, FIRFilterExtended &record, const QPointF &wanted);
    const FilterRecord &recordAt(const FilterHandle &handle) const;
    HandleEdit editOf(const FilterHandle &handle) const;

    FilterRecords m_records;
    std::vector<FilterHandle> m_handles;
    PlotAxes m_axes;
};

} // namespace tamble::client
