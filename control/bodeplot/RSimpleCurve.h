#pragma once

#include "ControlExport.h"
#include "bodeplot/BodeplotEnums.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantList>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Any given curve inside a plot frame: a measured response, a target, a stored reference.
///
/// The points are in axis units, as `points` or, when that is empty, as `xValues` with `yValues`; `trim` is added to y.
class TAMBLE_CLIENT_CONTROL_EXPORT RSimpleCurve : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RSimpleCurveTemplate)
    Q_PROPERTY(QObject *style MEMBER m_style NOTIFY styleChanged)
    Q_PROPERTY(qreal xMinimum MEMBER m_xMinimum NOTIFY xMinimumChanged)
    Q_PROPERTY(qreal xMaximum MEMBER m_xMaximum NOTIFY xMaximumChanged)
    Q_PROPERTY(qreal yMinimum MEMBER m_yMinimum NOTIFY yMinimumChanged)
    Q_PROPERTY(qreal yMaximum MEMBER m_yMaximum NOTIFY yMaximumChanged)
    Q_PROPERTY(int xAxisScale MEMBER m_xAxisScale NOTIFY xAxisScaleChanged)
    Q_PROPERTY(int yAxisScale MEMBER m_yAxisScale NOTIFY yAxisScaleChanged)
    Q_PROPERTY(QVariantList points MEMBER m_points NOTIFY pointsChanged)
    Q_PROPERTY(QList<qreal> xValues MEMBER m_xValues NOTIFY xValuesChanged)
    Q_PROPERTY(QList<qreal> yValues MEMBER m_yValues NOTIFY yValuesChanged)
    Q_PROPERTY(qreal trim MEMBER m_trim NOTIFY trimChanged)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY visibleCountChanged)

public:
    explicit RSimpleCurve(QQuickItem *parent = nullptr);

    int visibleCount() const { return m_visibleCount; }

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

private:
    QPointer<QObject> m_style;
    qreal m_xMinimum = 20.0;
    qreal m_xMaximum = 20000.0;
    qreal m_yMinimum = -20.0;
    qreal m_yMaximum = 20.0;
    int m_xAxisScale = RBodeplotAxisScaleEnum::LOGARITHMIC;
    int m_yAxisScale = RBodeplotAxisScaleEnum::LINEAR;
    QVariantList m_points;
    QList<qreal> m_xValues;
    QList<qreal> m_yValues;
    qreal m_trim = 0.0;
    int m_visibleCount = 0;
};

} // namespace tamble::client
