#pragma once

#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Gain curve of an ambient noise compensation over the ambient level.
///
/// Levels and gains are in dB, `ratio` in dB of gain per dB of ambient level. `freezeGain`, `minimumGainMax` and
/// `maximumGainMin` do not enter the curve. Inactive, bypassed and frozen by default, all numbers 0. A change of
/// `minimumGainMax` or `maximumGainMax` is announced by `minimumGainChanged` or `maximumGainChanged`; pages rely on it.
class TAMBLE_CLIENT_CONTROL_EXPORT ANCCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RANCCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Makes `values` a level line at 0 dB.
    Q_PROPERTY(bool ancBypassed READ ancBypassed WRITE setAncBypassed NOTIFY ancBypassedChanged)
    /// Tells that the device holds its gain at present; it does not enter the curve.
    Q_PROPERTY(bool freezeGain READ freezeGain WRITE setFreezeGain NOTIFY freezeGainChanged)
    /// Ambient level in dB at which the gain begins to rise, before `ambientThresholdOffset`.
    Q_PROPERTY(double ambientThreshold READ ambientThreshold WRITE setAmbientThreshold NOTIFY ambientThresholdChanged)
    /// `ambientThresholdMin` and `ambientThresholdMax`: lower and upper end of the plotted range of ambient levels in
    /// dB.
    Q_PROPERTY(double ambientThresholdMin READ ambientThresholdMin WRITE setAmbientThresholdMin NOTIFY
                   ambientThresholdMinChanged)
    Q_PROPERTY(double ambientThresholdMax READ ambientThresholdMax WRITE setAmbientThresholdMax NOTIFY
                   ambientThresholdMaxChanged)
    /// Shift in dB of the ambient levels on the plot.
    Q_PROPERTY(double ambientThresholdOffset READ ambientThresholdOffset WRITE setAmbientThresholdOffset NOTIFY
                   ambientThresholdOffsetChanged)
    /// Gain in dB up to the ambient threshold.
    Q_PROPERTY(double minimumGain READ minimumGain WRITE setMinimumGain NOTIFY minimumGainChanged)
    /// `minimumGainMin`: lowest gain of the plot in dB. `minimumGainMax`: upper bound of `minimumGain`; it does not
    /// enter the curve.
    Q_PROPERTY(double minimumGainMin READ minimumGainMin WRITE setMinimumGainMin NOTIFY minimumGainMinChanged)
    Q_PROPERTY(double minimumGainMax READ minimumGainMax WRITE setMinimumGainMax NOTIFY minimumGainMaxChanged)
    /// Gain in dB at which the rise ends.
    Q_PROPERTY(double maximumGain READ maximumGain WRITE setMaximumGain NOTIFY maximumGainChanged)
    /// `maximumGainMin`: lower bound of `maximumGain` in dB; it does not enter the curve. `maximumGainMax`: highest
    /// gain of the plot in dB.
    Q_PROPERTY(double maximumGainMin READ maximumGainMin WRITE setMaximumGainMin NOTIFY maximumGainMinChanged)
    Q_PROPERTY(double maximumGainMax READ maximumGainMax WRITE setMaximumGainMax NOTIFY maximumGainMaxChanged)
    /// Steepness of the rise in dB of gain per dB of ambient level.
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    /// `ratioMin` and `ratioMax`: bounds of `ratio`; they do not enter the curve.
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    /// Corner points of the curve, normalised; empty while inactive.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit ANCCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    bool ancBypassed() const { return m_parameters.bypassed; }
    void setAncBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::ancBypassedChanged); }
    bool freezeGain() const { return m_parameters.freezeGain; }
    void setFreezeGain(bool value) { assign(m_parameters.freezeGain, value, &Self::freezeGainChanged); }
    double ambientThreshold() const { return m_parameters.ambientThreshold; }
    void setAmbientThreshold(double value)
    {
        assign(m_parameters.ambientThreshold, value, &Self::ambientThresholdChanged);
    }
    double ambientThresholdMin() const { return m_parameters.ambientThresholdMin; }
    void setAmbientThresholdMin(double value)
    {
        assign(m_parameters.ambientThresholdMin, value, &Self::ambientThresholdMinChanged);
    }
    double ambientThresholdMax() const { return m_parameters.ambientThresholdMax; }
    void setAmbientThresholdMax(double value)
    {
        assign(m_parameters.ambientThresholdMax, value, &Self::ambientThresholdMaxChanged);
    }
    double ambientThresholdOffset() const { return m_parameters.ambientThresholdOffset; }
    void setAmbientThresholdOffset(double value)
    {
        assign(m_parameters.ambientThresholdOffset, value, &Self::ambientThresholdOffsetChanged);
    }
    double minimumGain() const { return m_parameters.minimumGain; }
    void setMinimumGain(double value) { assign(m_parameters.minimumGain, value, &Self::minimumGainChanged); }
    double minimumGainMin() const { return m_parameters.minimumGainMin; }
    void setMinimumGainMin(double value) { assign(m_parameters.minimumGainMin, value, &Self::minimumGainMinChanged); }
    double minimumGainMax() const { return m_parameters.minimumGainMax; }
    void setMinimumGainMax(double value) { assign(m_parameters.minimumGainMax, value, &Self::minimumGainChanged); }
    double maximumGain() const { return m_parameters.maximumGain; }
    void setMaximumGain(double value) { assign(m_parameters.maximumGain, value, &Self::maximumGainChanged); }
    double maximumGainMin() const { return m_parameters.maximumGainMin; }
    void setMaximumGainMin(double value) { assign(m_parameters.maximumGainMin, value, &Self::maximumGainMinChanged); }
    double maximumGainMax() const { return m_parameters.maximumGainMax; }
    void setMaximumGainMax(double value) { assign(m_parameters.maximumGainMax, value, &Self::maximumGainChanged); }
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double value) { assign(m_parameters.ratio, value, &Self::ratioChanged); }
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double value) { assign(m_parameters.ratioMin, value, &Self::ratioMinChanged); }
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double value) { assign(m_parameters.ratioMax, value, &Self::ratioMaxChanged); }

Q_SIGNALS:
    void calculatorActiveChanged();
    void ancBypassedChanged();
    void freezeGainChanged();
    void valuesChanged();
    void ambientThresholdChanged();
    void ambientThresholdMinChanged();
    void ambientThresholdMaxChanged();
    void ambientThresholdOffsetChanged();
    void minimumGainChanged();
    void minimumGainMinChanged();
    void minimumGainMaxChanged();
    void maximumGainChanged();
    void maximumGainMinChanged();
    void maximumGainMaxChanged();
    void ratioChanged();
    void ratioMinChanged();
    void ratioMaxChanged();

private:
    using Self = ANCCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    AncParameters m_parameters;
};

} // namespace tamble::client
