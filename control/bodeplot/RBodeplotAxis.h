#pragma once

#include "ControlExport.h"
#include "bodeplot/BodeplotEnums.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Labels of one axis of a frequency plot.
///
/// `labels` lists maps of value, text and position, the latter in pixels along the axis (to the right, or downwards).
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotAxis : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotAxisTemplate)
    Q_PROPERTY(bool horizontal MEMBER m_horizontal NOTIFY horizontalChanged)
    Q_PROPERTY(qreal minimum MEMBER m_minimum NOTIFY minimumChanged)
    Q_PROPERTY(qreal maximum MEMBER m_maximum NOTIFY maximumChanged)
    Q_PROPERTY(qreal delta MEMBER m_delta NOTIFY deltaChanged)
    Q_PROPERTY(int scale MEMBER m_scale NOTIFY scaleChanged)
    Q_PROPERTY(QVariantList xAxisTickValues MEMBER m_xAxisTickValues NOTIFY xAxisTickValuesChanged)
    Q_PROPERTY(QVariantList yAxisTickValues MEMBER m_yAxisTickValues NOTIFY yAxisTickValuesChanged)
    Q_PROPERTY(qreal fontSizeAxis MEMBER m_fontSizeAxis NOTIFY fontSizeAxisChanged)
    Q_PROPERTY(QObject *style MEMBER m_style NOTIFY styleChanged)
    Q_PROPERTY(QVariantList labels READ labels NOTIFY labelsChanged)

public:
    explicit RBodeplotAxis(QQuickItem *parent = nullptr);

    QVariantList labels() const { return m_labels; }

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

private:
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
};

} // namespace tamble::client
