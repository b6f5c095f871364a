#pragma once

#include "base/ControlExport.h"
#include "bodeplot/CurveStroke.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/FrameItem.h"
#include "bodeplot/response/LimiterLine.h"

#include <QtCore/QVariantList>

namespace tamble::client {

/// Threshold of a limiter inside a plot frame.
///
/// The x axis is a frequency on a LOGARITHMIC `xAxisScale`, an input level on a LINEAR one. `threshold` (0) is in dB;
/// `ratio` is 0 (the default) for a brick wall, else at least 1. `bypass` (false) shows the unlimited line only, in its
/// own colour. Values of the style object: curveColor, curveLineWidth, bypassCurveColor, bypassCurveLineWidth.
class TAMBLE_CLIENT_CONTROL_EXPORT RLimiterCurve : public tamble::client::FrameItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLimiterCurveTemplate)
    /// An `RBodeplotAxisScaleEnum` value: logarithmic for frequencies, linear for input levels.
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    /// Threshold in dB.
    Q_PROPERTY(qreal threshold MEMBER m_threshold NOTIFY thresholdChanged)
    /// 0 for a brick wall, else the factor n of n : 1 above the threshold, at least 1.
    Q_PROPERTY(qreal ratio MEMBER m_ratio NOTIFY ratioChanged)
    /// Shows the unlimited line only, in its own colour.
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    Q_PROPERTY(QVariantList points READ points NOTIFY pointsChanged)
    Q_PROPERTY(QPointF handlePoint READ handlePoint NOTIFY handlePointChanged)

public:
    explicit RLimiterCurve(QQuickItem *parent = nullptr);

    /// The line, cut at the frame, as normalised points: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom).
    QVariantList points() const;

    /// Normalised place of a handle for the threshold; on the nearest edge when the threshold is outside the frame.
    QPointF handlePoint() const { return m_handlePoint; }

    /// The threshold that brings the handle nearest to a normalised point: inside the frame, and a multiple of `step`
    /// (0: any) where the frame allows. NaN for a frame that shows nothing, or whose input and output levels have
    /// nothing in common.
    Q_INVOKABLE qreal thresholdNear(const QPointF &normalised, qreal step = 0.0) const;

    /// The threshold moved by a difference in dB as far as the frame allows; one outside the frame is not moved further
    /// out, nor made to jump inside. NaN as above.
    Q_INVOKABLE qreal thresholdMovedBy(qreal difference) const;

Q_SIGNALS:
    void xAxisScaleChanged();
    void thresholdChanged();
    void ratioChanged();
    void bypassChanged();
    void pointsChanged();
    void handlePointChanged();

protected:
    void onFrameChanged() override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    PlotAxes axes() const;
    LimiterRule rule() const { return {m_threshold, m_ratio, m_bypass}; }

    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    qreal m_threshold = 0.0;
    qreal m_ratio = 0.0;
    bool m_bypass = false;

    QList<QPointF> m_line;
    QPointF m_handlePoint;
    CurveStroke m_stroke;
};

} // namespace tamble::client
