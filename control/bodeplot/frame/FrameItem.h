#pragma once

#include "base/ControlExport.h"
#include "scale/PlotAxes.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// An item that draws inside a plot frame, in the colours and widths of a style object.
///
/// The frame is `xMinimum` 20 to `xMaximum` 20000 and `yMinimum` -20 to `yMaximum` 20. Bounds that are not finite or do
/// not rise draw nothing.
class TAMBLE_CLIENT_CONTROL_EXPORT FrameItem : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Object with the colours and widths that the item's description names; null, the default, draws nothing. A
    /// missing colour draws nothing, a missing width is 1 pixel.
    Q_PROPERTY(QObject *style READ style WRITE setStyle NOTIFY styleChanged)
    /// `xMinimum` and `xMaximum`: ends of the x axis at the left and right edge, in Hz in a frequency plot.
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    /// `yMinimum` and `yMaximum`: ends of the y axis at the bottom and top edge, in dB.
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)

public:
    QObject *style() const { return m_style; }
    void setStyle(QObject *style);

public Q_SLOTS:
    /// Reads the style object anew before the next frame; its own change signals do the same.
    virtual void refreshColors();

Q_SIGNALS:
    void styleChanged();
    void xMinimumChanged();
    void xMaximumChanged();
    void yMinimumChanged();
    void yMaximumChanged();

protected:
    explicit FrameItem(QQuickItem *parent);

    /// The bounds, the size, the window or its pixels changed: what is drawn has to be computed anew.
    virtual void onFrameChanged() = 0;

    /// The frame, with axes of these scales.
    PlotAxes axesOf(AxisScale x, AxisScale y) const;

    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
};

} // namespace tamble::client
