#pragma once

#include "base/ControlExport.h"
#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/frame/FrameTicks.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Labels of one axis of a frequency plot.
///
/// `horizontal` (true) and `minimum` 20 to `maximum` 20000 on a LOGARITHMIC `scale`; `delta` 10 is the distance of the
/// labels on a linear one. Of `xAxisTickValues` and `yAxisTickValues` the list of the axis' own direction chooses what
/// is labelled, unless it is empty. A linear axis whose delta is not positive and a logarithmic one that starts at 0 or
/// less have no labels, which is logged once; nor have bounds that are not finite or do not rise.
///
/// `style` carries fontFamily and fontSize, `fontSizeAxis` the size in pixels, for the component that shows the labels.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotAxis : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotAxisTemplate)
    /// Whether the axis runs to the right; else it runs upwards.
    Q_PROPERTY(bool horizontal MEMBER m_horizontal NOTIFY horizontalChanged)
    /// `minimum` and `maximum`: values at the ends of the axis, in Hz or dB.
    Q_PROPERTY(qreal minimum MEMBER m_minimum NOTIFY minimumChanged)
    Q_PROPERTY(qreal maximum MEMBER m_maximum NOTIFY maximumChanged)
    /// Distance of the labels on a linear axis, above 0.
    Q_PROPERTY(qreal delta MEMBER m_delta NOTIFY deltaChanged)
    /// Scale of the axis, an `RBodeplotAxisScaleEnum` value.
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    /// `xAxisTickValues` of a horizontal axis and `yAxisTickValues` of a vertical one: the values that are labelled;
    /// empty for automatic ones.
    Q_PROPERTY(QVariantList xAxisTickValues MEMBER m_xAxisTickValues NOTIFY xAxisTickValuesChanged)
    Q_PROPERTY(QVariantList yAxisTickValues MEMBER m_yAxisTickValues NOTIFY yAxisTickValuesChanged)
    /// Size of the labels in pixels.
    Q_PROPERTY(qreal fontSizeAxis MEMBER m_fontSizeAxis NOTIFY fontSizeAxisChanged)
    /// Object with fontFamily and fontSize (pixels); null by default.
    Q_PROPERTY(QObject *style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(QVariantList labels READ labels NOTIFY labelsChanged)
    Q_PROPERTY(QList<bool> readable READ readable NOTIFY labelsChanged)

public:
    explicit RBodeplotAxis(QQuickItem *parent = nullptr);

    QObject *style() const { return m_style; }
    void setStyle(QObject *style);

    /// Maps of value, text and position, lowest value first; the position is the label's centre in pixels along the
    /// axis (to the right, or downwards).
    ///
    /// Always up to date; in a window its change is signalled once a frame, however many properties changed.
    QVariantList labels();

    /// For each label whether there is room to show it. Labels that the page listed always are; without a list, those
    /// of a logarithmic axis that would touch a rounder number are not.
    QList<bool> readable();

public Q_SLOTS:
    /// Reads the style object anew; its own change signals do the same.
    void refreshFont();

Q_SIGNALS:
    void horizontalChanged();
    void minimumChanged();
    void maximumChanged();
    void deltaChanged();
    void scaleChanged();
    void xAxisTickValuesChanged();
    void yAxisTickValuesChanged();
    void fontSizeAxisChanged();
    void styleChanged();
    void labelsChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;

private:
    void invalidateLabels();
    void updateLabels();
    void reportProblem(TickProblem problem);
    QList<bool> readableOf(const QList<FrameLabel> &labels) const;

    bool m_horizontal = true;
    qreal m_minimum = 20.0;
    qreal m_maximum = 20000.0;
    qreal m_delta = 10.0;
    int m_scale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    QVariantList m_xAxisTickValues;
    QVariantList m_yAxisTickValues;
    qreal m_fontSizeAxis = 8.0;
    QPointer<QObject> m_style;
    QVariantList m_labels;
    QList<bool> m_readable;
    TickProblem m_problem = TickProblem::None;
    bool m_labelsStale = true;
    bool m_changeUnsignalled = false;
};

} // namespace tamble::client
