#include "bodeplot/RBodeplotCurve.h"

#include "base/StyleObject.h"
#include "scenegraph/SoftwarePicture.h"

#include <tamblecommon-math/FilterAlgorithm.h>

#include <QtCore/QDebug>
#include <QtCore/QScopedValueRollback>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

LineStyle lineStyle(const QObject *style, const char *color, const char *width)
{
    return {styleColor(style, color), styleWidth(style, width)};
}

} // namespace

RBodeplotCurve::RBodeplotCurve(QQuickItem *parent)
    : FrameItem(parent)
{
    connectProperties();
    connect(&m_lists, &ListedFilters::itemsChanged, this, &RBodeplotCurve::calculationItemsChanged);
    connect(&m_lists, &ListedFilters::referenceChanged, this, &RBodeplotCurve::calculationItemsReferenceChanged);
    connect(&m_filters, &CurveFilters::pointModelsChanged, this, &RBodeplotCurve::tellPointModels);
    connect(&m_filters, &CurveFilters::recordChanged, this, &RBodeplotCurve::requestEvaluation);
    connect(&m_filters, &CurveFilters::displayChanged, this, &RBodeplotCurve::requestLines);
}

RBodeplotCurve::~RBodeplotCurve()
{
    // The members go one after the other and must not be told of each other's end.
    m_lists.disconnect(this);
    m_filters.disconnect(this);
}

void RBodeplotCurve::connectProperties()
{
    connect(this, &RBodeplotCurve::trimChanged, this, &RBodeplotCurve::onTrimChanged);
    connect(this, &RBodeplotCurve::spectrumChanged, this, &RBodeplotCurve::requestLines);
    connect(this, &RBodeplotCurve::hideIndividualCurvesChanged, this, &RBodeplotCurve::requestLines);
    const auto evaluateAll = [this] { requestEvaluation(CurveFilters::allRecords); };
    connect(this, &RBodeplotCurve::samplerateChanged, this, evaluateAll);
    connect(this, &RBodeplotCurve::resolutionChanged, this, evaluateAll);
    connect(this, &RBodeplotCurve::calculationItemsChanged, this, &RBodeplotCurve::requestConversion);
    connect(this, &RBodeplotCurve::calculationItemsReferenceChanged, this, &RBodeplotCurve::requestConversion);
}

void RBodeplotCurve::refreshColors()
{
    CurveStyle read;
    read.aggregated = lineStyle(style(), "aggregatedCurveColor", "aggregatedCurveLineWidth");
    read.individual = lineStyle(style(), "individualCurveColor", "individualCurveLineWidth");
    read.bypass = lineStyle(style(), "bypassCurveColor", "bypassCurveLineWidth");
    if (!read.bypass.color.isValid())
        read.bypass = read.individual;
    read.selected = lineStyle(style(), "selectedCurveColor", "selectedCurveLineWidth");
    read.area = styleColor(style(), "aggregatedAreaColor");
    read.saturation.nearCurve = styleWidth(style(), "areaSaturationNearAggregatedCurve");
    read.saturation.nearAxis = styleWidth(style(), "areaSaturationNearxAchsis");
    if (std::exchange(m_curveStyle, read) != read)
        update();
}

QQmlListProperty<RBodeplotCalculationItem> RBodeplotCurve::calculationItems()
{
    return m_lists.items();
}

QQmlListReference RBodeplotCurve::calculationItemsReference()
{
    return m_lists.reference();
}

void RBodeplotCurve::setCalculationItemsReference(const QQmlListReference &reference)
{
    m_lists.setReference(reference);
}

void RBodeplotCurve::requestConversion()
{
    if (!isComponentComplete() || std::exchange(m_listIsStale, true))
        return;
    if (window())
        polish();
    else
        QMetaObject::invokeMethod(this, &RBodeplotCurve::updatePolish, Qt::QueuedConnection);
}

CurveFilters &RBodeplotCurve::presentFilters()
{
    // What asks may be a binding, or a gesture on a handle that goes with the old list: it must be through before other
    // handles are told of.
    const QScopedValueRollback asked(m_tellsHandlesLater, true);
    if (m_listIsStale)
        convertFilters();
    return m_filters;
}

QList<QObject *> RBodeplotCurve::filterPointModels()
{
    return presentFilters().pointModels();
}

void RBodeplotCurve::tellPointModels()
{
    if (m_tellsHandlesLater)
        QMetaObject::invokeMethod(this, &RBodeplotCurve::filterPointModelsChanged, Qt::QueuedConnection);
    else
        Q_EMIT filterPointModelsChanged();
}

void RBodeplotCurve::convertFilters()
{
    m_listIsStale = false;
    if (!isComponentComplete())
        return;
    m_filters.setFilters(m_lists.converted());
}

void RBodeplotCurve::onCalculationItemsChanged()
{
    convertFilters();
    evaluate();
}

void RBodeplotCurve::refresh(const QList<QSharedPointer<tamble::common::CalculationItem>> &data)
{
    ConvertedFilters filters;
    filters.records.assign(data.begin(), data.end());
    m_listIsStale = false;
    m_filters.setFilters(std::move(filters));
    evaluate();
}

void RBodeplotCurve::selectFilterPoint(int index)
{
    presentFilters().select(index);
}

void RBodeplotCurve::selectFilterPointBySystem(int item)
{
    m_filters.select(presentFilters().set().firstHandleOf(item));
}

void RBodeplotCurve::onUserSelectFilterPoint(int index)
{
    selectFilterPoint(index);
    Q_EMIT userSelectedFilterPoint(index, m_filters.selectedRecord());
}

void RBodeplotCurve::onUserMoveFilterPoint(int index, const QPointF &pt)
{
    tellEdit(presentFilters().move(index, pt));
}

void RBodeplotCurve::onUserChangeFilterPointQuality(int index, qreal baseQuality, qreal change)
{
    tellEdit(presentFilters().changeQuality(index, baseQuality, change));
}

void RBodeplotCurve::holdFilterPoint(int index)
{
    presentFilters().hold(index);
}

void RBodeplotCurve::releaseFilterPoint(int index)
{
    for (const int handle : index < 0 ? presentFilters().heldHandles() : std::vector{index})
        tellEdit(presentFilters().release(handle, m_settleTime));
}

void RBodeplotCurve::cancelFilterPoint(int index)
{
    for (const int handle : index < 0 ? presentFilters().heldHandles() : std::vector{index})
        tellEdit(presentFilters().cancel(handle));
}

void RBodeplotCurve::stepFilterPoint(int index, qreal octaves, qreal decibels)
{
    const FilterSet &set = presentFilters().set();
    if (set.recordOf(index) >= 0)
        onUserMoveFilterPoint(index, steppedPoint(set.handles()[std::size_t(index)], octaves, decibels, set.axes()));
}

void RBodeplotCurve::levelFilterPoint(int index)
{
    tellEdit(presentFilters().level(index));
}

int RBodeplotCurve::nextFilterPoint(int index, bool forward)
{
    return neighbourHandle(presentFilters().set().handles(), index, forward);
}

void RBodeplotCurve::tellEdit(const HandleEdit &edit)
{
    if (!edit) {
        if (!edit.problem.isEmpty())
            qDebug().noquote() << edit.problem;
        return;
    }
    Q_EMIT userChangedFilterPoint(edit.record, relationText(edit.relation), float(edit.frequencyHz), float(edit.gainDb),
                                  float(edit.quality));
    m_filters.follow(edit);
    requestEvaluation(edit.record);
}

void RBodeplotCurve::onWidthChanged()
{
    requestLines();
}

void RBodeplotCurve::onHeightChanged()
{
    requestLines();
}

void RBodeplotCurve::onXMinOrMaxChanged()
{
    onFrameChanged();
}

void RBodeplotCurve::onYMinOrMaxChanged()
{
    onFrameChanged();
}

void RBodeplotCurve::onFrameChanged()
{
    m_filters.setAxes(axes());
    requestLines();
}

PlotAxes RBodeplotCurve::axes() const
{
    return axesOf(AxisScale::Logarithmic, AxisScale::Linear);
}

void RBodeplotCurve::onTrimChanged()
{
    qDebug() << "RBodeplotCurve::onTrimChanged(); value" << m_trim << "width" << width() << "height" << height();
    requestLines();
}

void RBodeplotCurve::requestEvaluation(int record)
{
    const bool first = m_evaluation == Evaluation::None;
    const bool one = record != CurveFilters::allRecords && (first || m_evaluatedRecord == record);
    m_evaluation = one && m_evaluation != Evaluation::All ? Evaluation::One : Evaluation::All;
    m_evaluatedRecord = record;
    requestLines();
}

void RBodeplotCurve::requestLines()
{
    if (!isComponentComplete())
        return;
    if (window())
        polish();
    else if (!m_listIsStale)
        updatePolish();
}

void RBodeplotCurve::evaluate()
{
    const Evaluation evaluation = std::exchange(m_evaluation, Evaluation::None);
    if (evaluation == Evaluation::None)
        return;
    const bool one = evaluation == Evaluation::One;
    const FilterRecords &records = m_filters.set().records();
    m_calculation.items.resize(records.size());
    std::ranges::transform(records, m_calculation.items.begin(), &FilterRecord::item);
    m_calculation.sampleRate = m_samplerate;
    m_calculation.resolution = m_resolution;
    tamble::common::FilterAlgorithm::calculateBodePlotLogarithmic(m_calculation, one, unsigned(m_evaluatedRecord));
    if (one)
        m_lines.recordChanged(m_evaluatedRecord);
    else
        m_lines.allChanged();
    m_filters.returnHeaders(one ? m_evaluatedRecord : CurveFilters::allRecords);
}

void RBodeplotCurve::updateScaledCurve()
{
    const FilterRecords &records = m_filters.set().records();
    m_shownRecords.resize(records.size());
    for (std::size_t i = 0; i < records.size(); ++i)
        m_shownRecords[i] = !m_hideIndividualCurves && records[i].display().visible;

    ResponseLines::Settings settings;
    settings.view = {axes(), size(), int(m_calculation.results.aggregated.magnitude.size()),
                     m_calculation.lowestFrequency, m_calculation.highestFrequency};
    settings.phase = m_spectrum == RBodeplotSpectrumEnum::PHASE;
    settings.trim = m_trim;
    if (const auto outside = m_lines.update(m_calculation.results, settings, m_shownRecords)) {
        const auto &aggregated = m_calculation.results.aggregated;
        qDebug() << "RBodeplotCurve::updateScaledCurve() index out of range value:" << *outside << "not between 0 and"
                 << qsizetype(aggregated.magnitude.size()) - 1;
    }
    update();
}

void RBodeplotCurve::componentComplete()
{
    FrameItem::componentComplete();
    m_filters.setAxes(axes());
    onCalculationItemsChanged();
    m_lists.tellOfUnlisted();
}

void RBodeplotCurve::updatePolish()
{
    if (m_listIsStale)
        convertFilters();
    evaluate();
    updateScaledCurve();
}

QSGNode *RBodeplotCurve::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) {
        auto *node = old ? static_cast<ResponseCurveNode *>(old) : new ResponseCurveNode;
        node->show({.lines = m_lines,
                    .records = m_filters.set().records(),
                    .selectedRecord = m_filters.selectedRecord(),
                    .style = m_curveStyle,
                    .size = size(),
                    .pixelRatio = window()->effectiveDevicePixelRatio()});
        return node;
    });
}

} // namespace tamble::client
