#pragma once

#include "ControlExport.h"
#include "bodeplot/BodeplotEnums.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Threshold of a limiter inside a plot frame.
///
/// `threshold` is in dB; `ratio` is 0 for a brick wall, else at least 1. `points` is normalised: x from 0 (left) to 1
/// (right), y from 0 (top) to 1 (bottom).
class TAMBLE_CLIENT_CONTROL_EXPORT RLimiterCurve : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLimiterCurveTemplate)
    Q_PROPERTY(QObject *style MEMBER m_style NOTIFY styleChanged)
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(qreal threshold MEMBER m_threshold NOTIFY thresholdChanged)
    Q_PROPERTY(qreal ratio MEMBER m_ratio NOTIFY ratioChanged)
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    Q_PROPERTY(QVariantList points READ points NOTIFY pointsChanged)

public:
    explicit RLimiterCurve(QQuickItem *parent = nullptr);

    QVariantList points() const { return m_points; }

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

private:
    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    qreal m_threshold = 0.0;
    qreal m_ratio = 0.0;
    bool m_bypass = false;
    QVariantList m_points;
};

} // namespace tamble::client
