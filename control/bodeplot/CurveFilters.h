#pragma once

#include "bodeplot/FilterHolds.h"
#include "bodeplot/filters/FilterConversion.h"
#include "bodeplot/filters/FilterWatch.h"
#include "bodeplot/handles/FilterSet.h"

#include <QtCore/QList>
#include <QtCore/QObject>

#include <vector>

namespace tamble::client {

/// The filters of a curve with the objects they come from, their handles as models for QML, and the selection.
///
/// While a handle is held, and for a settling time afterwards, what the object of its filter says waits. Then the
/// object counts again, whether it took the edit or refused it.
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

    void setFilters(ConvertedFilters filters);
    void setAxes(const PlotAxes &axes);
    /// Tells the objects of evaluated FIR filters what the headers of their records have become; see allRecords.
    void returnHeaders(int evaluatedRecord);

    HandleEdit move(int handle, const QPointF &wanted);
    /// What is left to do of a gesture when the page has been told of it, see FilterSet::follow().
    void follow(const HandleEdit &edit);
    HandleEdit level(int handle);
    HandleEdit changeQuality(int handle, double baseQuality, double change);

    /// The handles that are held.
    std::vector<int> heldHandles() const;
    void hold(int handle);
    /// Ends the hold of a handle; its filter settles for some time. Tells what an asymmetric band, which lags one step,
    /// still has to tell.
    HandleEdit release(int handle, int settleTimeMs);
    /// Puts the record of a held handle back to what it was when the hold began; nothing when the handle is not held.
    HandleEdit cancel(int handle);

    /// Selects a handle and its record; any other index selects none.
    void select(int handle);

Q_SIGNALS:
    void pointModelsChanged();
    /// The record has another response; see allRecords.
    void recordChanged(int record);
    /// Visibility, bypass or selection changed: other lines are shown, or in another way.
    void displayChanged();

private:
    QStringList take(ConvertedFilters filters);
    void refresh(QObject *source);
    void refreshRecord(std::size_t position, const FilterRecord &record);
    FilterRecord saidRecord(std::size_t position) const;
    void checkSlope(std::size_t position);
    void followHeader(QObject *source);
    void followSelection(QObject *source);
    void drop(QObject *source);
    FilterHold *holdOf(int handle);
    int findSelected() const;
    void markSelected();
    void updateModels();

    FilterSet m_set;
    ConvertedFilters m_filters;
    FilterWatch m_watch;
    QList<QObject *> m_pointModels;
    std::vector<FilterHandle> m_modelledHandles; ///< What the models were made for.
    FilterHolds m_holds;
    int m_selectedRecord = -1;
    int m_selectedHandle = -1; ///< -1: every handle of the selected record is.
    int m_previouslySelectedRecord = -1;
    bool m_hasToldOfSlope = false;
    const QObject *m_markedSource = nullptr; ///< Its `selected` is being written, which is no news.
};

} // namespace tamble::client
