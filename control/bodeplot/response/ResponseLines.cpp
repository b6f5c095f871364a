#include "bodeplot/response/ResponseLines.h"

#include "bodeplot/response/ResponseOutline.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// How far, in pixels, lines go on outside the frame. Drawn lines have a width, and the half of it that is inside must
/// not end before the frame does; the node cuts off the rest.
constexpr double lineMargin = 8.0;

const std::vector<double> &shownValues(const tamble::common::FilterResponse &response, bool phase)
{
    return phase ? response.phase : response.magnitude;
}

} // namespace

void ResponseLines::recordChanged(int record)
{
    if (record >= 0 && std::size_t(record) < m_records.size())
        m_records[std::size_t(record)].stale = true;
    m_aggregated.stale = true;
}

void ResponseLines::allChanged()
{
    for (ResponseLine &line : m_records)
        line.stale = true;
    m_aggregated.stale = true;
}

std::optional<int> ResponseLines::update(const tamble::common::BodePlotCalculationResults &results,
                                         const Settings &settings, const std::vector<bool> &shownRecords)
{
    if (settings.view != m_settings.view || settings.phase != m_settings.phase) {
        allChanged();
        if (!settings.view.isEmpty())
            columnSamples(settings.view, m_samples);
    } else if (settings.trim != m_settings.trim) {
        m_aggregated.stale = true;
    }
    m_settings = settings;
    m_records.resize(results.items.size());

    if (std::exchange(m_aggregated.stale, false))
        updateAggregated(results.aggregated);
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        ResponseLine &line = m_records[i];
        const bool shown = i < shownRecords.size() && shownRecords[i];
        if (!shown) {
            clear(line);
            line.stale = true;
        } else if (std::exchange(line.stale, false)) {
            updateLine(line, shownValues(results.items[i], settings.phase), 0.0);
        }
    }
    if (settings.view.isEmpty())
        return std::nullopt;
    return firstOutside(m_samples, shownValues(results.aggregated, settings.phase).size());
}

void ResponseLines::updateAggregated(const tamble::common::FilterResponse &response)
{
    const ResponseView &view = m_settings.view;
    updateLine(m_aggregated, shownValues(response, m_settings.phase), m_settings.trim);
    if (view.isEmpty()) {
        m_area.clear();
        return;
    }
    const double height = view.size.height();
    m_axisY = std::clamp(LevelScale(view, 0.0)(0.0) * height / view.rows(), 0.0, height);
    areaOutline(m_outline, QRectF(0.0, 0.0, view.size.width(), height), m_axisY, m_area);
}

void ResponseLines::updateLine(ResponseLine &line, const std::vector<double> &values, double offset)
{
    const ResponseView &view = m_settings.view;
    if (view.isEmpty()) {
        clear(line);
        return;
    }
    const LevelScale scale(view, offset);
    scaleColumns(values, m_samples, scale, line.columns);
    responseOutline({values, m_samples, line.columns, scale, m_settings.phase}, view, m_outline);

    const QRectF frame(0.0, 0.0, view.size.width(), view.size.height());
    FrameClip clip(frame.adjusted(-lineMargin, -lineMargin, lineMargin, lineMargin), line.points);
    for (std::size_t i = 0; i < m_outline.count(); ++i) {
        for (const QPointF &point : m_outline.run(i))
            clip.lineTo(point);
        clip.breakLine();
    }
    clip.finish();
    line.revision = ++m_lastRevision;
}

void ResponseLines::clear(ResponseLine &line)
{
    line.columns.clear();
    if (line.points.count() == 0)
        return;
    line.points.clear();
    line.revision = ++m_lastRevision;
}

} // namespace tamble::client
