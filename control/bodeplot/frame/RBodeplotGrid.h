#pragma once

#include "base/ControlExport.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/FrameItem.h"
#include "scenegraph/StrokeGeometry.h"

#include <QtCore/QVariantList>
#include <QtGui/QColor>

#include <array>

namespace tamble::client {

/// Grid lines of a frequency plot; x in Hz, y in dB, colours and widths from `style`.
///
/// Upright lines: `xAxisScale` LOGARITHMIC, `xIncrement` 0 (distance of the lines on a linear axis; 0 or less for
/// none). Level lines: `yAxisScale` LINEAR, `yIncrement` 10. Values missing from a tick list that is not empty are
/// drawn at 40 % opacity. `dedicatedXAxisLine` (true) adds the 0 dB line above the others.
///
/// Values of the style object: lineWidthVertical, lineColorVertical, lineWidthHorizontal, lineColorHorizontal,
/// lineWidthXAchsis, lineColorXAchsis.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotGrid : public tamble::client::FrameItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotGridTemplate)
    /// Distance of the lines on linear axes: `xIncrement` in Hz, `yIncrement` in dB; 0 or less for none.
    Q_PROPERTY(qreal xIncrement MEMBER m_xIncrement NOTIFY xIncrementChanged)
    Q_PROPERTY(qreal yIncrement MEMBER m_yIncrement NOTIFY yIncrementChanged)
    /// `xAxisScale` and `yAxisScale`: scales of the axes, `RBodeplotAxisScaleEnum` values.
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(int yAxisScale MEMBER m_yAxisScale NOTIFY yAxisScaleChanged)
    /// Values whose lines have full strength: `xAxisTickValues` in Hz, `yAxisTickValues` in dB; empty for all.
    Q_PROPERTY(QVariantList xAxisTickValues MEMBER m_xAxisTickValues NOTIFY xAxisTickValuesChanged)
    Q_PROPERTY(QVariantList yAxisTickValues MEMBER m_yAxisTickValues NOTIFY yAxisTickValuesChanged)
    /// Draws the 0 dB line above the others in a colour of its own.
    Q_PROPERTY(bool dedicatedXAxisLine MEMBER m_dedicatedXAxisLine NOTIFY dedicatedXAxisLineChanged)

public:
    explicit RBodeplotGrid(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void xIncrementChanged();
    void yIncrementChanged();
    void xAxisScaleChanged();
    void yAxisScaleChanged();
    void xAxisTickValuesChanged();
    void yAxisTickValuesChanged();
    void dedicatedXAxisLineChanged();

protected:
    void componentComplete() override;
    void onFrameChanged() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    /// Lines that share a colour, in drawing order.
    struct LineKind
    {
        QColor color;
        StrokeGeometry lines;

        bool operator==(const LineKind &) const = default;
    };
    enum KindIndex { FaintVertical, FaintHorizontal, Vertical, Horizontal, ZeroLine, KindCount };
    using LineKinds = std::array<LineKind, KindCount>;
    struct LineWidths
    {
        double vertical = 1.0;
        double horizontal = 1.0;
        double zeroLine = 1.0;

        bool operator==(const LineWidths &) const = default;
    };

    QSGNode *updateLines(QSGNode *oldNode) const;
    void warnWithoutZero() const;
    bool showsZero() const;
    PlotAxes axes() const;
    void readStyle();
    void computeLines();

    qreal m_xIncrement = 0.0;
    qreal m_yIncrement = 10.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    int m_yAxisScale = RBodeplotAxisScaleEnum::LINEAR;
    QVariantList m_xAxisTickValues;
    QVariantList m_yAxisTickValues;
    bool m_dedicatedXAxisLine = true;

    LineWidths m_widths;
    LineKinds m_kinds;
    bool m_linesStale = true;
    bool m_tooManyLinesReported = false;
};

} // namespace tamble::client
