#pragma once

#include "dynamics/CompressorCurve.h"
#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Transfer curve of a compressor with make-up gain and an optional soft knee.
///
/// Levels are in dB, `softKneeInDbu` is the width of the knee, `ratio` the factor n of n : 1. `thresholdMin` and
/// `thresholdMax` bound the plotted range on both axes; the other bounds do not enter the curve. Active and bypassed
/// by default, hard knee, ratios 1, all levels 0.
class TAMBLE_CLIENT_CONTROL_EXPORT CompressorCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCompressorCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Makes `values` the identity line.
    Q_PROPERTY(
        bool compressorBypassed READ compressorBypassed WRITE setCompressorBypassed NOTIFY compressorBypassedChanged)
    /// Whether `softKneeInDbu` counts; without it the curve has a corner at the threshold.
    Q_PROPERTY(bool softKneeActive READ softKneeActive WRITE setSoftKneeActive NOTIFY softKneeActiveChanged)
    /// Width of the soft knee in dB, half of it on either side of the threshold; 0 and less give a corner.
    Q_PROPERTY(double softKneeInDbu READ softKneeInDbu WRITE setSoftKneeInDbu NOTIFY softKneeInDbuChanged)
    /// Input level in dB from which on the compressor reduces.
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    /// `thresholdMin` and `thresholdMax`: lower and upper end of the plotted range in dB, on both axes.
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    /// Factor n of n : 1 above the threshold; below 1 and not a number count as 1, infinity limits.
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    /// `ratioMin` and `ratioMax`: bounds of `ratio`; they do not enter the curve.
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    /// Gain in dB that is added to the whole curve.
    Q_PROPERTY(double makeUpGain READ makeUpGain WRITE setMakeUpGain NOTIFY makeUpGainChanged)
    /// `makeUpGainMin` and `makeUpGainMax`: bounds of `makeUpGain` in dB; they do not enter the curve.
    Q_PROPERTY(double makeUpGainMin READ makeUpGainMin WRITE setMakeUpGainMin NOTIFY makeUpGainMinChanged)
    Q_PROPERTY(double makeUpGainMax READ makeUpGainMax WRITE setMakeUpGainMax NOTIFY makeUpGainMaxChanged)
    /// Corner points of the curve, normalised; empty while inactive.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit CompressorCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    bool compressorBypassed() const { return m_parameters.bypassed; }
    void setCompressorBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::compressorBypassedChanged); }
    bool softKneeActive() const { return m_parameters.softKneeActive; }
    void setSoftKneeActive(bool value) { assign(m_parameters.softKneeActive, value, &Self::softKneeActiveChanged); }
    double softKneeInDbu() const { return m_parameters.softKneeInDbu; }
    void setSoftKneeInDbu(double value) { assign(m_parameters.softKneeInDbu, value, &Self::softKneeInDbuChanged); }
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double value) { assign(m_parameters.threshold, value, &Self::thresholdChanged); }
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double value) { assign(m_parameters.thresholdMin, value, &Self::thresholdMinChanged); }
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double value) { assign(m_parameters.thresholdMax, value, &Self::thresholdMaxChanged); }
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double value) { assign(m_parameters.ratio, value, &Self::ratioChanged); }
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double value) { assign(m_parameters.ratioMin, value, &Self::ratioMinChanged); }
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double value) { assign(m_parameters.ratioMax, value, &Self::ratioMaxChanged); }
    double makeUpGain() const { return m_parameters.makeUpGain; }
    void setMakeUpGain(double value) { assign(m_parameters.makeUpGain, value, &Self::makeUpGainChanged); }
    double makeUpGainMin() const { return m_parameters.makeUpGainMin; }
    void setMakeUpGainMin(double value) { assign(m_parameters.makeUpGainMin, value, &Self::makeUpGainMinChanged); }
    double makeUpGainMax() const { return m_parameters.makeUpGainMax; }
    void setMakeUpGainMax(double value) { assign(m_parameters.makeUpGainMax, value, &Self::makeUpGainMaxChanged); }

Q_SIGNALS:
    void calculatorActiveChanged();
    void compressorBypassedChanged();
    void softKneeActiveChanged();
    void valuesChanged();
    void thresholdMinChanged();
    void thresholdChanged();
    void softKneeInDbuChanged();
    void thresholdMaxChanged();
    void ratioMinChanged();
    void ratioChanged();
    void ratioMaxChanged();
    void makeUpGainMinChanged();
    void makeUpGainChanged();
    void makeUpGainMaxChanged();

private:
    using Self = CompressorCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    CompressorParameters m_parameters;
};

} // namespace tamble::client
