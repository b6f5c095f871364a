#pragma once

#include "base/ControlExport.h"
#include "bodeplot/CurveStroke.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/response/LimiterLine.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Threshold of a limiter inside a plot frame.
///
/// The frame is `xMinimum` 20 to `xMaximum` 20000 and `yMinimum` -20 to `yMaximum` 20; bounds that are not finite or do
/// not rise draw nothing. Its x axis is a frequency on a LOGARITHMIC `xAxisScale`, an input level on a LINEAR one.
/// `threshold` (0) is in dB; `ratio` is 0 (the default) for a brick wall, else at least 1. `bypass` (false) shows the
/// unlimited line only, in its own colour. Values of the style object: curveColor, curveLineWidth, bypassCurveColor,
/// bypassCurveLineWidth; a missing colour draws nothing, a missing width is 1 pixel.
class TAMBLE_CLIENT_CONTROL_EXPORT RLimiterCurve : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLimiterCurveTemplate)
    /// Object with the colours and widths named above; null, the default, draws nothing.
    Q_PROPERTY(QObject *style READ style WRITE setStyle NOTIFY styleChanged)
    /// `xMinimum` and `xMaximum`: ends of the x axis, in Hz, or in dB of input level on a linear axis.
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    /// `yMinimum` and `yMaximum`: levels in dB at the bottom and top edge.
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
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

    QObject *style() const { return m_style; }
    void setStyle(QObject *style);

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

public Q_SLOTS:
    /// Reads the style object anew before the next frame; its own change signals do the same.
    void refreshColors();

Q_SIGNALS:
    void styleChanged();
    void xMinimumChanged();
    void xMaximumChanged();
    void yMinimumChanged();
    void yMaximumChanged();
    void xAxisScaleChanged();
    void thresholdChanged();
    void ratioChanged();
    void bypassChanged();
    void pointsChanged();
    void handlePointChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void updateLine();
    PlotAxes axes() const;
    LimiterRule rule() const { return {m_threshold, m_ratio, m_bypass}; }

    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    qreal m_threshold = 0.0;
    qreal m_ratio = 0.0;
    bool m_bypass = false;

    QList<QPointF> m_line;
    QPointF m_handlePoint;
    CurveStroke m_stroke;
};

} // namespace tamble::client
