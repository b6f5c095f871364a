#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Transfer curve of a noise gate: a drop by the depth below the threshold.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0. A threshold or depth outside its bounds empties `values` without `valuesChanged`.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT NoiseGateCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RNoiseGateCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(bool gateBypassed READ gateBypassed WRITE setGateBypassed NOTIFY gateBypassedChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    Q_PROPERTY(double depth READ depth WRITE setDepth NOTIFY depthChanged)
    Q_PROPERTY(double depthMin READ depthMin WRITE setDepthMin NOTIFY depthMinChanged)
    Q_PROPERTY(double depthMax READ depthMax WRITE setDepthMax NOTIFY depthMaxChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit NoiseGateCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    bool gateBypassed() const { return m_parameters.bypassed; }
    void setGateBypassed(bool gateBypassed);
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double threshold);
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double thresholdMin);
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double thresholdMax);
    double depth() const { return m_parameters.depth; }
    void setDepth(double depth);
    double depthMin() const { return m_parameters.depthMin; }
    void setDepthMin(double depthMin);
    double depthMax() const { return m_parameters.depthMax; }
    void setDepthMax(double depthMax);
    QVariantList values() const { return m_values; }

Q_SIGNALS:
    void calculatorActiveChanged();
    void gateBypassedChanged();
    void valuesChanged();
    void thresholdMinChanged();
    void thresholdChanged();
    void thresholdMaxChanged();
    void depthMinChanged();
    void depthChanged();
    void depthMaxChanged();

private:
    friend struct CalculatorSetter;
    void recompute();

    GateParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
