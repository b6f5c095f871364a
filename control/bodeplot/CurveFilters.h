#pragma once

#include "bodeplot/filters/FilterConversion.h"
#include "bodeplot/filters/FilterWatch.h"
#include "bodeplot/handles/FilterSet.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <optional>
#include <vector>

namespace tamble::client {

/// The filters of a curve with the objects they come from, their handles as models for QML, and the selection.
///
/// While a handle is held, and for a settling time afterwards, what the object of its filter says waits: a device
/// confirms a drag late, and the handle must not jump back to old values under the pointer. Then the object counts
/// again, whether it took the edit or refused it.
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
    void setFrame(const HandleFrame &frame);
    /// Tells the objects of evaluated FIR filters what the headers of their records have become; see allRecords.
    void returnHeaders(int evaluatedRecord);

    HandleEdit move(int handle, const QPointF &wanted);
    /// What is left to do of a gesture when the page has been told of it, see FilterSet::follow().
    void follow(const HandleEdit &edit);
    HandleEdit level(int handle);
    HandleEdit changeQuality(int handle, double baseQuality, double change);

    void hold(int handle);
    /// Ends a hold; its filter settles for some time. Tells what an asymmetric band, which lags one step, still has to
    /// tell.
    HandleEdit release(int settleTimeMs);
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
    /// A filter that the user has edited.
    struct Edited
    {
        QObject *source = nullptr;
        FilterRecord record;
    };
    struct Hold : Edited
    {
        HandleRelation relation = HandleRelation::Eq;
        FilterRecord before;
        std::optional<QPointF> untoldPoint; ///< Of the handle's last move, when it was told the state before that.

        bool isActive() const { return !record.isNull(); }
    };
    /// A hold that has ended a moment ago.
    struct Settling : Edited
    {
        QBasicTimer timer;
    };

    QStringList take(ConvertedFilters filters);
    void refresh(QObject *source);
    void refreshRecord(std::size_t position);
    void checkSlope(std::size_t position);
    void followHeader(QObject *source);
    void followSelection(QObject *source);
    void drop(QObject *source);
    int heldRecord() const;
    int heldHandle() const;
    bool isEdited(const QObject *source) const;
    bool keepRecord(const Edited &edited, FilterRecords &records) const;
    void keepEditedRecords(FilterRecords &records);
    void endHold(int settleTimeMs);
    int findSelected() const;
    void markSelected();
    void updateModels();

    FilterSet m_set;
    ConvertedFilters m_filters;
    FilterWatch m_watch;
    QList<QObject *> m_pointModels;
    std::vector<FilterHandle> m_modelledHandles; ///< What the models were made for.
    Hold m_hold;
    std::vector<Settling> m_settling;
    int m_selectedRecord = -1;
    int m_selectedHandle = -1; ///< -1: every handle of the selected record is.
    int m_previouslySelectedRecord = -1;
    bool m_hasToldOfSlope = false;
    const QObject *m_markedSource = nullptr; ///< Its `selected` is being written, which is no news.
};

} // namespace tamble::client
