#pragma once

#include "base/ControlExport.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/BodeplotZoom.h"

#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Frame of a frequency plot: the visible ranges that grid, axes and curves follow, with zooming and panning.
///
/// Frequencies are in Hz, levels in dB. A value that is not a number is ignored by every setter.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplot : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotTemplate)
    /// `yMaximum` and `yMinimum`: levels in dB at the top and bottom edge.
    Q_PROPERTY(qreal yMaximum READ yMaximum WRITE setYMaximum NOTIFY yMaximumChanged)
    Q_PROPERTY(qreal yMinimum READ yMinimum WRITE setYMinimum NOTIFY yMinimumChanged)
    /// `xMinimum` and `xMaximum`: frequencies in Hz at the left and right edge.
    Q_PROPERTY(qreal xMinimum READ xMinimum WRITE setXMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum READ xMaximum WRITE setXMaximum NOTIFY xMaximumChanged)
    /// Distance of grid lines and labels on linear axes: `xIncrement` in Hz, `yIncrement` in dB; 0 for none.
    Q_PROPERTY(qreal xIncrement MEMBER m_xIncrement NOTIFY xIncrementChanged)
    Q_PROPERTY(qreal yIncrement MEMBER m_yIncrement NOTIFY yIncrementChanged)
    /// Width in pixels of the area that pans refer to.
    Q_PROPERTY(qreal zoomAreaWidth MEMBER m_zoomAreaWidth NOTIFY zoomAreaWidthChanged)
    /// Values that have a label and a line of full strength: `xAxisTickValues` in Hz, `yAxisTickValues` in dB; empty
    /// for automatic ones.
    Q_PROPERTY(QVariantList xAxisTickValues MEMBER m_xAxisTickValues NOTIFY xAxisTickValuesChanged)
    Q_PROPERTY(QVariantList yAxisTickValues MEMBER m_yAxisTickValues NOTIFY yAxisTickValuesChanged)
    /// False makes zoom steps and pans do nothing.
    Q_PROPERTY(bool enableZooming MEMBER m_enableZooming NOTIFY enableZoomingChanged)
    /// `xAxisScale` and `yAxisScale`: scales of the axes, `RBodeplotAxisScaleEnum` values.
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(int yAxisScale MEMBER m_yAxisScale NOTIFY yAxisScaleChanged)

public:
    explicit RBodeplot(QQuickItem *parent = nullptr);

    qreal yMaximum() const { return m_levels.maximum; }
    void setYMaximum(qreal levelDb);
    qreal yMinimum() const { return m_levels.minimum; }
    void setYMinimum(qreal levelDb);
    qreal xMinimum() const { return m_frequencies.minimum; }
    void setXMinimum(qreal frequencyHz);
    qreal xMaximum() const { return m_frequencies.maximum; }
    void setXMaximum(qreal frequencyHz);

    /// Lower end of the range that zooming and panning never leave.
    Q_INVOKABLE void setDefaultXMinimum(qreal frequencyHz);
    /// Upper end of the range that zooming and panning never leave.
    Q_INVOKABLE void setDefaultXMaximum(qreal frequencyHz);
    /// Frequency span in decades at which zooming in ends.
    Q_INVOKABLE void setMinLogDistance(qreal decades);
    /// Factor of one zoom step on the frequency axis, above 1.
    Q_INVOKABLE void setDeltaX(qreal factor);
    /// Width of one zoom step on the level axis.
    Q_INVOKABLE void setDeltaY(qreal stepDb);
    /// Smallest distance of the level bounds from 0 dB.
    Q_INVOKABLE void setMinYAxis(qreal boundDb);
    /// Largest distance of the level bounds from 0 dB.
    Q_INVOKABLE void setMaxYAxis(qreal boundDb);

    /// Starts a pan at a pixel position of the zoom area.
    Q_INVOKABLE void onMousePressed(qreal mouseXPosition);
    /// Pans to a pixel position; nothing happens outside 0 to `zoomAreaWidth` or while the whole range is shown.
    Q_INVOKABLE void onMousePositionChanged(qreal mouseXPosition);

    /// One step along the level axis. `direction` is an `RBodeplotZoomEnum` value; others do nothing.
    Q_INVOKABLE void zoomYAxis(int direction);
    /// One step along the frequency axis.
    ///
    /// Whether a step inwards is allowed depends on the span that the previous call measured. The first step inwards
    /// therefore only measures, and one step may end below the minimum distance before the next one is refused.
    Q_INVOKABLE void zoomXAxis(int direction);

Q_SIGNALS:
    void yMaximumChanged();
    void yMinimumChanged();
    void xMinimumChanged();
    void xMaximumChanged();
    void xIncrementChanged();
    void yIncrementChanged();
    void zoomAreaWidthChanged();
    void xAxisTickValuesChanged();
    void yAxisTickValuesChanged();
    void enableZoomingChanged();
    void xAxisScaleChanged();
    void yAxisScaleChanged();

private:
    VisibleRange m_levels;
    VisibleRange m_frequencies;
    qreal m_xIncrement = 0.0;
    qreal m_yIncrement = 0.0;
    qreal m_zoomAreaWidth = 0.0;
    QVariantList m_xAxisTickValues;
    QVariantList m_yAxisTickValues;
    bool m_enableZooming = true;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    int m_yAxisScale = RBodeplotAxisScaleEnum::LINEAR;

    LevelZoom m_levelZoom;
    FrequencyZoom m_frequencyZoom;
    PanAnchor m_panAnchor;
    double m_measuredSpan = 0.0; ///< In decades, as of the end of the last zoom along the frequency axis.
};

} // namespace tamble::client
