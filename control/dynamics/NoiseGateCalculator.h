#pragma once

#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Transfer curve of a noise gate: a drop by the depth below the threshold.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0. A threshold or depth outside its bounds empties `values` without `valuesChanged`.
class TAMBLE_CLIENT_CONTROL_EXPORT NoiseGateCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RNoiseGateCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Makes `values` the identity line.
    Q_PROPERTY(bool gateBypassed READ gateBypassed WRITE setGateBypassed NOTIFY gateBypassedChanged)
    /// Level in dB below which the gate closes.
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    /// `thresholdMin` and `thresholdMax`: lower and upper end of the plotted range in dB, on both axes.
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    /// Attenuation in dB below the threshold, counted positive.
    Q_PROPERTY(double depth READ depth WRITE setDepth NOTIFY depthChanged)
    /// `depthMin` and `depthMax`: bounds of `depth` in dB. A depth outside of them has no curve.
    Q_PROPERTY(double depthMin READ depthMin WRITE setDepthMin NOTIFY depthMinChanged)
    Q_PROPERTY(double depthMax READ depthMax WRITE setDepthMax NOTIFY depthMaxChanged)
    /// Corner points of the curve, normalised; empty while inactive or with a parameter outside its bounds.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit NoiseGateCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    bool gateBypassed() const { return m_parameters.bypassed; }
    void setGateBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::gateBypassedChanged); }
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double value) { assign(m_parameters.threshold, value, &Self::thresholdChanged); }
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double value) { assign(m_parameters.thresholdMin, value, &Self::thresholdMinChanged); }
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double value) { assign(m_parameters.thresholdMax, value, &Self::thresholdMaxChanged); }
    double depth() const { return m_parameters.depth; }
    void setDepth(double value) { assign(m_parameters.depth, value, &Self::depthChanged); }
    double depthMin() const { return m_parameters.depthMin; }
    void setDepthMin(double value) { assign(m_parameters.depthMin, value, &Self::depthMinChanged); }
    double depthMax() const { return m_parameters.depthMax; }
    void setDepthMax(double value) { assign(m_parameters.depthMax, value, &Self::depthMaxChanged); }

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
    using Self = NoiseGateCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    GateParameters m_parameters;
};

} // namespace tamble::client
