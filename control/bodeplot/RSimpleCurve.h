#pragma once

#include "base/ControlExport.h"
#include "bodeplot/CurveStroke.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/response/CurvePixels.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Any given curve inside a plot frame: a measured response, a target, a stored reference.
///
/// The frame is `xMinimum` 20 to `xMaximum` 20000 on a LOGARITHMIC `xAxisScale` and `yMinimum` -20 to `yMaximum` 20 on
/// a LINEAR `yAxisScale`; bounds that are not finite or do not rise draw nothing. `trim` (0) is added to y. Values of
/// the style object: curveColor (missing: nothing is drawn) and curveLineWidth (missing: 1 pixel).
class TAMBLE_CLIENT_CONTROL_EXPORT RSimpleCurve : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSimpleCurveTemplate)
    /// Object with the colour and width named above; null, the default, draws nothing.
    Q_PROPERTY(QObject *style READ style WRITE setStyle NOTIFY styleChanged)
    /// `xMinimum` and `xMaximum`: ends of the x axis, in Hz in a frequency plot.
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    /// `yMinimum` and `yMaximum`: ends of the y axis, in dB in a frequency plot.
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
    /// `xAxisScale` and `yAxisScale`: scales of the axes, `RBodeplotAxisScaleEnum` values.
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(int yAxisScale MEMBER m_yAxisScale NOTIFY yAxisScaleChanged)
    /// The curve as points in axis units; an entry that is no point interrupts it.
    Q_PROPERTY(QVariantList points MEMBER m_points NOTIFY pointsChanged)
    /// `xValues` and `yValues`: the curve in axis units while `points` is empty; the shorter list counts.
    Q_PROPERTY(QList<qreal> xValues MEMBER m_xValues NOTIFY xValuesChanged)
    Q_PROPERTY(QList<qreal> yValues MEMBER m_yValues NOTIFY yValuesChanged)
    /// Added to all y values, in their unit.
    Q_PROPERTY(qreal trim MEMBER m_trim NOTIFY trimChanged)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY visibleCountChanged)

public:
    explicit RSimpleCurve(QQuickItem *parent = nullptr);

    QObject *style() const { return m_style; }
    void setStyle(QObject *style);

    /// Number of given points that lie inside the frame.
    int visibleCount() const { return m_visibleCount; }

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
    void yAxisScaleChanged();
    void pointsChanged();
    void xValuesChanged();
    void yValuesChanged();
    void trimChanged();
    void visibleCountChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void collectPoints();
    void invalidateCurve();
    PlotAxes axes() const;

    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    int m_yAxisScale = RBodeplotAxisScaleEnum::LINEAR;
    /// The curve in axis units; an entry that is no point interrupts it.
    QVariantList m_points;
    /// The curve when `points` is empty; the shorter list counts.
    QList<qreal> m_xValues;
    QList<qreal> m_yValues;
    qreal m_trim = 0.0;
    int m_visibleCount = 0;

    QList<QPointF> m_samples; ///< Whichever form the page gave, as points.
    CurveStroke m_stroke;
    bool m_linesStale = true;
};

} // namespace tamble::client
