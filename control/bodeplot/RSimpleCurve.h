#pragma once

#include "base/ControlExport.h"
#include "bodeplot/CurveStroke.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/FrameItem.h"
#include "bodeplot/response/CurvePixels.h"

#include <QtCore/QVariantList>

namespace tamble::client {

/// Any given curve inside a plot frame: a measured response, a target, a stored reference.
///
/// `xAxisScale` is LOGARITHMIC, `yAxisScale` LINEAR by default; `trim` (0) is added to y. Values of the style object:
/// curveColor and curveLineWidth.
class TAMBLE_CLIENT_CONTROL_EXPORT RSimpleCurve : public tamble::client::FrameItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSimpleCurveTemplate)
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

    /// Number of given points that lie inside the frame.
    int visibleCount() const { return m_visibleCount; }

Q_SIGNALS:
    void xAxisScaleChanged();
    void yAxisScaleChanged();
    void pointsChanged();
    void xValuesChanged();
    void yValuesChanged();
    void trimChanged();
    void visibleCountChanged();

protected:
    void onFrameChanged() override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void collectPoints();
    PlotAxes axes() const;

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
