#pragma once

#include "ControlExport.h"
#include "bodeplot/BodeplotEnums.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Grid lines of a frequency plot; x in Hz, y in dB, colours and widths from `style`.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotGrid : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotGridTemplate)
    Q_PROPERTY(QObject *style MEMBER m_style NOTIFY styleChanged)
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
    Q_PROPERTY(qreal xIncrement MEMBER m_xIncrement NOTIFY xIncrementChanged)
    Q_PROPERTY(qreal yIncrement MEMBER m_yIncrement NOTIFY yIncrementChanged)
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(int yAxisScale MEMBER m_yAxisScale NOTIFY yAxisScaleChanged)
    Q_PROPERTY(QVariantList xAxisTickValues MEMBER m_xAxisTickValues NOTIFY xAxisTickValuesChanged)
    Q_PROPERTY(QVariantList yAxisTickValues MEMBER m_yAxisTickValues NOTIFY yAxisTickValuesChanged)
    Q_PROPERTY(bool dedicatedXAxisLine MEMBER m_dedicatedXAxisLine NOTIFY dedicatedXAxisLineChanged)

public:
    explicit RBodeplotGrid(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void styleChanged();
    void xMinimumChanged();
    void xMaximumChanged();
    void yMinimumChanged();
    void yMaximumChanged();
    void xIncrementChanged();
    void yIncrementChanged();
    void xAxisScaleChanged();
    void yAxisScaleChanged();
    void xAxisTickValuesChanged();
    void yAxisTickValuesChanged();
    void dedicatedXAxisLineChanged();

private:
    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    qreal m_xIncrement = 0.0;
    qreal m_yIncrement = 10.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    int m_yAxisScale = RBodeplotAxisScaleEnum::LINEAR;
    QVariantList m_xAxisTickValues;
    QVariantList m_yAxisTickValues;
    bool m_dedicatedXAxisLine = true;
};

} // namespace tamble::client
