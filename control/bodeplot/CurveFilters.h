#pragma once

#include "bodeplot/FilterConversion.h"
#include "bodeplot/FilterSet.h"
#include "bodeplot/FilterWatch.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QList>
#include <QtCore/QObject>

namespace tamble::client {

/// The filters of a curve with the objects they come from, their handles as models for QML, and the selection.
///
/// While a handle is held, and for a settling time afterwards, what the object of its filter says waits: a device
/// confirms a drag late, and the handle must not jump back to old values under the pointer.
class CurveFilters : public QObject
{
    Q_OBJECT

public:
    /// For recordChanged(): every record.
    static constexpr int allRecords = -1;

    CurveFilters();

    const FilterSet &set() const { return m_set; }
    QList<QObject *> pointModels() const { return m_pointModels; }
    /// Position of the selected record and of the one before, -1 for none.
    int selectedRecord() const { return m_selectedRecord; }
    int previouslySelectedRecord() const { return m_previouslySelectedRecord; }

    void setFilters(const ConvertedFilters &filters);
    void setFrame(const HandleFrame &frame);
    /// Tells the FIR filters' objects what their records' headers have become.
    void returnHeaders();

    HandleEdit move(int handle, const QPointF &wanted);
    HandleEdit changeQuality(int handle, double baseQuality, double change);

    void hold(int handle);
    void release(int settleTimeMs);
    /// Ends a hold with the record as it was at its beginning; nothing when no handle is held.
    HandleEdit cancel();

    /// Selects a handle and its record; any other index selects none.
    void select(int handle);

Q_SIGNALS:
    void pointModelsChanged();
    /// The record has another response; see allRecords.
    void recordChanged(int record);
    /// Visibility, bypass or selection changed: other lines are shown, or in another way.
    void displayChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Hold
    {
        HandleRelation relation = HandleRelation::Eq;
        QObject *source = nullptr;
        FilterRecord record;
        FilterRecord before;
        bool missedChange = false;

        bool isActive() const { return !record.isNull(); }
    };

    void refresh(QObject *source);
    void refreshRecord(std::size_t position);
    void followSelection(QObject *source);
    void drop(QObject *source);
    int heldRecord() const;
    void keepHeldRecord(FilterRecords &records, const std::vector<QObject *> &sources);
    void endHold();
    int findSelected() const;
    void markSelected();
    void updateModels();

    FilterSet m_set;
    ConvertedFilters m_filters;
    FilterWatch m_watch;
    QList<QObject *> m_pointModels;
    std::vector<FilterHandle> m_modelledHandles; ///< What the models were made for.
    Hold m_hold;
    QBasicTimer m_settling;
    int m_selectedRecord = -1;
    int m_selectedHandle = -1; ///< -1: every handle of the selected record is.
    int m_previouslySelectedRecord = -1;
    bool m_writesToSources = false; ///< What is written to the objects comes from here and is not news.
};

} // namespace tamble::client
