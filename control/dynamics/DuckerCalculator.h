#pragma once

#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Transfer curve of a ducker: a drop by the ducking level above the threshold.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0.
class TAMBLE_CLIENT_CONTROL_EXPORT DuckerCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDuckerCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Makes `values` the identity line.
    Q_PROPERTY(bool duckerBypassed READ duckerBypassed WRITE setDuckerBypassed NOTIFY duckerBypassedChanged)
    /// Level in dB from which on the ducker lowers the signal.
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    /// `thresholdMin` and `thresholdMax`: lower and upper end of the plotted range in dB, on both axes.
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    /// Attenuation in dB above the threshold, counted positive.
    Q_PROPERTY(double duckingLevel READ duckingLevel WRITE setDuckingLevel NOTIFY duckingLevelChanged)
    /// `duckingLevelMin` and `duckingLevelMax`: bounds of `duckingLevel` in dB; they do not enter the curve.
    Q_PROPERTY(double duckingLevelMin READ duckingLevelMin WRITE setDuckingLevelMin NOTIFY duckingLevelMinChanged)
    Q_PROPERTY(double duckingLevelMax READ duckingLevelMax WRITE setDuckingLevelMax NOTIFY duckingLevelMaxChanged)
    /// Corner points of the curve, normalised; empty while inactive.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit DuckerCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    bool duckerBypassed() const { return m_parameters.bypassed; }
    void setDuckerBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::duckerBypassedChanged); }
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double value) { assign(m_parameters.threshold, value, &Self::thresholdChanged); }
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double value) { assign(m_parameters.thresholdMin, value, &Self::thresholdMinChanged); }
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double value) { assign(m_parameters.thresholdMax, value, &Self::thresholdMaxChanged); }
    double duckingLevel() const { return m_parameters.duckingLevel; }
    void setDuckingLevel(double value) { assign(m_parameters.duckingLevel, value, &Self::duckingLevelChanged); }
    double duckingLevelMin() const { return m_parameters.duckingLevelMin; }
    void setDuckingLevelMin(double value)
    {
        assign(m_parameters.duckingLevelMin, value, &Self::duckingLevelMinChanged);
    }
    double duckingLevelMax() const { return m_parameters.duckingLevelMax; }
    void setDuckingLevelMax(double value)
    {
        assign(m_parameters.duckingLevelMax, value, &Self::duckingLevelMaxChanged);
    }

Q_SIGNALS:
    void calculatorActiveChanged();
    void duckerBypassedChanged();
    void valuesChanged();
    void thresholdMinChanged();
    void thresholdChanged();
    void thresholdMaxChanged();
    void duckingLevelMinChanged();
    void duckingLevelChanged();
    void duckingLevelMaxChanged();

private:
    using Self = DuckerCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    DuckerParameters m_parameters;
};

} // namespace tamble::client
