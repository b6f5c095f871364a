#pragma once

#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Transfer curve of a limiter: the identity up to the threshold, level from there on.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0.
class TAMBLE_CLIENT_CONTROL_EXPORT LimiterCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLimiterCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Highest output level in dB.
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    /// `thresholdMin` and `thresholdMax`: lower and upper end of the plotted range in dB, on both axes.
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    /// Makes `values` the identity line.
    Q_PROPERTY(bool limiterBypassed READ limiterBypassed WRITE setLimiterBypassed NOTIFY limiterBypassedChanged)
    /// Corner points of the curve, normalised; empty while inactive.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit LimiterCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double value) { assign(m_parameters.threshold, value, &Self::thresholdChanged); }
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double value) { assign(m_parameters.thresholdMin, value, &Self::thresholdMinChanged); }
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double value) { assign(m_parameters.thresholdMax, value, &Self::thresholdMaxChanged); }
    bool limiterBypassed() const { return m_parameters.bypassed; }
    void setLimiterBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::limiterBypassedChanged); }

Q_SIGNALS:
    void calculatorActiveChanged();
    void valuesChanged();
    void thresholdMinChanged();
    void thresholdChanged();
    void thresholdMaxChanged();
    void limiterBypassedChanged();

private:
    using Self = LimiterCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    LimiterParameters m_parameters;
};

} // namespace tamble::client
