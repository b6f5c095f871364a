#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Transfer curve of a limiter: the identity up to the threshold, level from there on.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT LimiterCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLimiterCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    Q_PROPERTY(bool limiterBypassed READ limiterBypassed WRITE setLimiterBypassed NOTIFY limiterBypassedChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit LimiterCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double threshold);
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double thresholdMin);
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double thresholdMax);
    bool limiterBypassed() const { return m_parameters.bypassed; }
    void setLimiterBypassed(bool limiterBypassed);
    QVariantList values() const { return m_values; }

Q_SIGNALS:
    void calculatorActiveChanged();
    void valuesChanged();
    void thresholdMinChanged();
    void thresholdChanged();
    void thresholdMaxChanged();
    void limiterBypassedChanged();

private:
    friend struct CalculatorSetter;
    void recompute();

    LimiterParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
