#pragma once

#include "base/ControlExport.h"
#include "bodeplot/CurveFilters.h"
#include "bodeplot/ListedFilters.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/FrameItem.h"
#include "bodeplot/handles/RBodeplotPointModel.h"
#include "bodeplot/response/ResponseCurveNode.h"
#include "bodeplot/response/ResponseLines.h"

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtQml/QQmlListProperty>
#include <QtQml/QQmlListReference>

namespace tamble::client {

/// Frequency response of a set of filters, drawn inside a plot frame, with one handle per editable corner.
///
/// Frequencies are in Hz, levels in dB. The filters are declared in `calculationItems` or, when that is empty, given as
/// a list of arbitrary objects with filter-named properties (`calculationItemsReference`). Changed filters are
/// evaluated and drawn with the next frame; without a window, which has no frames, at once. A list that is assigned
/// comes item by item, so it is taken over as a whole with the next frame (without a window: the next event), or before
/// something asks for its handles.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotCurve : public tamble::client::FrameItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotCurveTemplate)
    /// Gain in dB that is added to the sum of the filters.
    Q_PROPERTY(qreal trim MEMBER m_trim NOTIFY trimChanged)
    /// What the curves show, an `RBodeplotSpectrumEnum` value: magnitude in dB or phase.
    Q_PROPERTY(int spectrum MEMBER m_spectrum NOTIFY spectrumChanged)
    /// Draws the sum alone, without the curves of single filters.
    Q_PROPERTY(bool hideIndividualCurves MEMBER m_hideIndividualCurves NOTIFY hideIndividualCurvesChanged)
    /// Sample rate in Hz that FIR filters run at.
    Q_PROPERTY(qreal samplerate MEMBER m_samplerate NOTIFY samplerateChanged)
    /// Number of frequencies at which the response is computed.
    Q_PROPERTY(int resolution MEMBER m_resolution NOTIFY resolutionChanged)
    /// Time in ms after the release of a handle until the page's values count again.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged)
    Q_PROPERTY(QQmlListProperty<tamble::client::RBodeplotCalculationItem> calculationItems READ calculationItems NOTIFY
                   calculationItemsChanged)
    Q_PROPERTY(QQmlListReference calculationItemsReference READ calculationItemsReference WRITE
                   setCalculationItemsReference NOTIFY calculationItemsReferenceChanged)
    /// The handles, as `RBodeplotPointModel` objects, one or two for each filter; the curve owns them.
    Q_PROPERTY(QList<QObject *> filterPointModels READ filterPointModels NOTIFY filterPointModelsChanged)

public:
    explicit RBodeplotCurve(QQuickItem *parent = nullptr);
    ~RBodeplotCurve() override;

    /// The filters. A filter that is destroyed leaves the list by itself.
    QQmlListProperty<RBodeplotCalculationItem> calculationItems();

    /// Any objects with filter-named properties; an empty list while none is set and when its owner is gone.
    QQmlListReference calculationItemsReference();
    void setCalculationItemsReference(const QQmlListReference &reference);

    QList<QObject *> filterPointModels();

    /// While a handle is held, values that a page writes to its filter wait until the handle is released and
    /// `settleTime` (ms, default 300) has passed. Each handle has a hold of its own.
    Q_INVOKABLE void holdFilterPoint(int index);
    /// Ends the hold of a handle; -1 ends all.
    Q_INVOKABLE void releaseFilterPoint(int index = -1);
    /// Puts the filter of a held handle, -1 for those of all, back to what it was when the hold began.
    Q_INVOKABLE void cancelFilterPoint(int index = -1);
    /// Drags a handle this far from where it is, within the frame.
    Q_INVOKABLE void stepFilterPoint(int index, qreal octaves, qreal decibels);
    /// Sets the gain of a handle's filter to 0 dB, if it has one.
    Q_INVOKABLE void levelFilterPoint(int index);
    /// The handle that follows in order of frequency, see neighbourHandle().
    Q_INVOKABLE int nextFilterPoint(int index, bool forward);

public Q_SLOTS:
    /// Takes ready-made records in place of the present ones, until the lists change.
    void refresh(const QList<QSharedPointer<tamble::common::CalculationItem>> &data);
    /// Reads the style object. Colours: aggregatedCurveColor, aggregatedAreaColor, individualCurveColor,
    /// bypassCurveColor, selectedCurveColor; a missing one is not drawn, but for bypassed curves, which then look like
    /// the others. Widths in pixels: the names of the curves with LineWidth, default 1. Strength of the area:
    /// areaSaturationNearAggregatedCurve and areaSaturationNearxAchsis, 0 to 1.
    void refreshColors() override;
    /// Selects a handle; an index without handle selects none.
    void selectFilterPoint(int index);
    /// Selects the first handle of a filter, given by its position among the filters.
    void selectFilterPointBySystem(int item);
    /// To be called once for each press on a handle.
    void onUserSelectFilterPoint(int index);
    /// Drags a handle to a normalised point.
    void onUserMoveFilterPoint(int index, const QPointF &pt);
    /// Changes the Q of a handle's filter; `change` is a way in pixels, see draggedQuality().
    void onUserChangeFilterPointQuality(int index, qreal baseQuality, qreal change);

    /// `onWidthChanged` and `onHeightChanged` draw the lines anew; the curve calls them itself.
    void onWidthChanged();
    void onHeightChanged();
    /// Converts and evaluates all filters anew.
    void onCalculationItemsChanged();
    /// `onYMinOrMaxChanged`, `onXMinOrMaxChanged` and `onTrimChanged` bring the lines into the present frame; the curve
    /// calls them itself.
    void onYMinOrMaxChanged();
    void onXMinOrMaxChanged();
    void onTrimChanged();

Q_SIGNALS:
    void trimChanged();
    void spectrumChanged();
    void hideIndividualCurvesChanged();
    void samplerateChanged();
    void resolutionChanged();
    void settleTimeChanged();
    void calculationItemsChanged();
    void calculationItemsReferenceChanged();
    void filterPointModelsChanged();
    /// A handle was pressed: its index and the position of its filter.
    void userSelectedFilterPoint(int index, int selectedIndex);
    /// A handle was dragged: position of its filter, which of the filter's parameters it edits, and their new values.
    void userChangedFilterPoint(int index, const QString &type, float frequency, float gain, float quality);

protected:
    void componentComplete() override;
    void onFrameChanged() override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

    /// Pixel columns and lines as of the last rescaling.
    const ResponseLines &lines() const { return m_lines; }

private:
    enum class Evaluation { None, One, All };

    void connectProperties();
    void requestConversion();
    void convertFilters();
    /// With the list taken over.
    CurveFilters &presentFilters();
    void tellPointModels();
    void requestEvaluation(int record);
    void requestLines();
    void evaluate();
    void updateScaledCurve();
    PlotAxes axes() const;
    void tellEdit(const HandleEdit &edit);

    qreal m_trim = 0.0;
    int m_spectrum = RBodeplotSpectrumEnum::MAGNITUDE;
    bool m_hideIndividualCurves = false;
    qreal m_samplerate = 48000.0;
    int m_resolution = 4096;
    int m_settleTime = 300;

    ListedFilters m_lists{this};
    CurveFilters m_filters;
    bool m_listIsStale = false; ///< m_filters is still that of an earlier list.
    bool m_tellsHandlesLater = false;
    tamble::common::BodePlotCalculation m_calculation;
    Evaluation m_evaluation = Evaluation::All;
    int m_evaluatedRecord = CurveFilters::allRecords;
    std::vector<bool> m_shownRecords;
    ResponseLines m_lines;
    CurveStyle m_curveStyle;
};

} // namespace tamble::client
