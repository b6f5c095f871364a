#include "bodeplot/frame/RBodeplot.h"

#include <cmath>

namespace tamble::client {

namespace {

/// Stores `value` when it is a number that differs, and tells whether it did.
bool assign(double &target, qreal value)
{
    if (std::isnan(value) || target == value)
        return false;
    target = value;
    return true;
}

} // namespace

RBodeplot::RBodeplot(QQuickItem *parent)
    : QQuickItem(parent)
{}

void RBodeplot::setYMaximum(qreal levelDb)
{
    if (assign(m_levels.maximum, levelDb))
        Q_EMIT yMaximumChanged();
}

void RBodeplot::setYMinimum(qreal levelDb)
{
    if (assign(m_levels.minimum, levelDb))
        Q_EMIT yMinimumChanged();
}

void RBodeplot::setXMinimum(qreal frequencyHz)
{
    if (assign(m_frequencies.minimum, frequencyHz))
        Q_EMIT xMinimumChanged();
}

void RBodeplot::setXMaximum(qreal frequencyHz)
{
    if (assign(m_frequencies.maximum, frequencyHz))
        Q_EMIT xMaximumChanged();
}

void RBodeplot::setDefaultXMinimum(qreal frequencyHz)
{
    assign(m_frequencyZoom.outermost.minimum, frequencyHz);
}

void RBodeplot::setDefaultXMaximum(qreal frequencyHz)
{
    assign(m_frequencyZoom.outermost.maximum, frequencyHz);
}

void RBodeplot::setMinLogDistance(qreal decades)
{
    assign(m_frequencyZoom.minimumLogDistance, decades);
}

void RBodeplot::setDeltaX(qreal factor)
{
    assign(m_frequencyZoom.factor, factor);
}

void RBodeplot::setDeltaY(qreal stepDb)
{
    assign(m_levelZoom.step, stepDb);
}

void RBodeplot::setMinYAxis(qreal boundDb)
{
    assign(m_levelZoom.minimumBound, boundDb);
}

void RBodeplot::setMaxYAxis(qreal boundDb)
{
    assign(m_levelZoom.maximumBound, boundDb);
}

void RBodeplot::onMousePressed(qreal mouseXPosition)
{
    m_panAnchor = {mouseXPosition, m_frequencies};
}

void RBodeplot::onMousePositionChanged(qreal mouseXPosition)
{
    const bool inside = mouseXPosition >= 0.0 && mouseXPosition <= m_zoomAreaWidth;
    if (!m_enableZooming || !inside || !isZoomed(m_frequencies, m_frequencyZoom))
        return;

    const VisibleRange panned =
        frequenciesPanned(m_frequencies, m_panAnchor, mouseXPosition, m_zoomAreaWidth, m_frequencyZoom);
    setXMinimum(panned.minimum);
    setXMaximum(panned.maximum);
    if (touchesOutermost(m_frequencies, m_frequencyZoom))
        m_panAnchor = {mouseXPosition, m_frequencies};
}

void RBodeplot::zoomYAxis(int direction)
{
    if (!m_enableZooming)
        return;

    VisibleRange zoomed = m_levels;
    if (direction == RBodeplotZoomEnum::ZOOM_IN)
        zoomed = levelsZoomedIn(m_levels, m_levelZoom);
    else if (direction == RBodeplotZoomEnum::ZOOM_OUT)
        zoomed = levelsZoomedOut(m_levels, m_levelZoom);
    setYMaximum(zoomed.maximum);
    setYMinimum(zoomed.minimum);
}

void RBodeplot::zoomXAxis(int direction)
{
    if (!m_enableZooming)
        return;

    VisibleRange zoomed = m_frequencies;
    if (direction == RBodeplotZoomEnum::ZOOM_IN && m_measuredSpan > m_frequencyZoom.minimumLogDistance)
        zoomed = frequenciesZoomedIn(m_frequencies, m_frequencyZoom);
    else if (direction == RBodeplotZoomEnum::ZOOM_OUT)
        zoomed = frequenciesZoomedOut(m_frequencies, m_frequencyZoom);
    setXMaximum(zoomed.maximum);
    setXMinimum(zoomed.minimum);
    m_measuredSpan = spanInDecades(m_frequencies);
}

} // namespace tamble::client
