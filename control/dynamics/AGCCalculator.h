#pragma once

#include "dynamics/CurveCalculator.h"

namespace tamble::client {

/// Transfer curve of an automatic gain control around its target level.
///
/// Levels are in dB, `threshold` is relative to `levelIn`, `ratio` is a plain factor. The bounds of `levelIn`, `kneeIn`
/// and `ratio` serve the controls around the plot and do not enter the curve. Inactive and bypassed by default, all
/// numbers 0. A change of `kneeInMin` or `kneeInMax` is announced by `kneeInChanged`; pages rely on it.
class TAMBLE_CLIENT_CONTROL_EXPORT AGCCalculator : public tamble::client::CurveCalculator
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAGCCalculator)
    /// False empties `values`.
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    /// Makes `values` the identity line.
    Q_PROPERTY(bool agcBypassed READ agcBypassed WRITE setAgcBypassed NOTIFY agcBypassedChanged)
    /// Target level in dB, before `thresholdOffset`.
    Q_PROPERTY(double levelIn READ levelIn WRITE setLevelIn NOTIFY levelInChanged)
    /// `levelInMin` and `levelInMax`: bounds of `levelIn` in dB for the controls around the plot; they do not enter the
    /// curve.
    Q_PROPERTY(double levelInMin READ levelInMin WRITE setLevelInMin NOTIFY levelInMinChanged)
    Q_PROPERTY(double levelInMax READ levelInMax WRITE setLevelInMax NOTIFY levelInMaxChanged)
    /// Input level in dB, relative to `levelIn`, from which on the gain is controlled.
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    /// `thresholdMin` and `thresholdMax`: lower and upper end of the plotted range in dB, before `thresholdOffset`.
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    /// Shift in dB of both axes of the plot and of the target level on them.
    Q_PROPERTY(double thresholdOffset READ thresholdOffset WRITE setThresholdOffset NOTIFY thresholdOffsetChanged)
    /// Width in dB of the transition below the threshold.
    Q_PROPERTY(double kneeIn READ kneeIn WRITE setKneeIn NOTIFY kneeInChanged)
    /// `kneeInMin` and `kneeInMax`: bounds of `kneeIn` in dB; they do not enter the curve.
    Q_PROPERTY(double kneeInMin READ kneeInMin WRITE setKneeInMin NOTIFY kneeInMinChanged)
    Q_PROPERTY(double kneeInMax READ kneeInMax WRITE setKneeInMax NOTIFY kneeInMaxChanged)
    /// Factor n of n : 1 by which the distance from the target is compressed.
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    /// `ratioMin` and `ratioMax`: bounds of `ratio`; they do not enter the curve.
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    /// Corner points of the curve, normalised; empty while inactive.
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit AGCCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool value) { assign(m_parameters.active, value, &Self::calculatorActiveChanged); }
    bool agcBypassed() const { return m_parameters.bypassed; }
    void setAgcBypassed(bool value) { assign(m_parameters.bypassed, value, &Self::agcBypassedChanged); }
    double levelIn() const { return m_parameters.levelIn; }
    void setLevelIn(double value) { assign(m_parameters.levelIn, value, &Self::levelInChanged); }
    double levelInMin() const { return m_parameters.levelInMin; }
    void setLevelInMin(double value) { assign(m_parameters.levelInMin, value, &Self::levelInMinChanged); }
    double levelInMax() const { return m_parameters.levelInMax; }
    void setLevelInMax(double value) { assign(m_parameters.levelInMax, value, &Self::levelInMaxChanged); }
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double value) { assign(m_parameters.threshold, value, &Self::thresholdChanged); }
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double value) { assign(m_parameters.thresholdMin, value, &Self::thresholdMinChanged); }
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double value) { assign(m_parameters.thresholdMax, value, &Self::thresholdMaxChanged); }
    double thresholdOffset() const { return m_parameters.thresholdOffset; }
    void setThresholdOffset(double value)
    {
        assign(m_parameters.thresholdOffset, value, &Self::thresholdOffsetChanged);
    }
    double kneeIn() const { return m_parameters.kneeIn; }
    void setKneeIn(double value) { assign(m_parameters.kneeIn, value, &Self::kneeInChanged); }
    double kneeInMin() const { return m_parameters.kneeInMin; }
    void setKneeInMin(double value) { assign(m_parameters.kneeInMin, value, &Self::kneeInChanged); }
    double kneeInMax() const { return m_parameters.kneeInMax; }
    void setKneeInMax(double value) { assign(m_parameters.kneeInMax, value, &Self::kneeInChanged); }
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double value) { assign(m_parameters.ratio, value, &Self::ratioChanged); }
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double value) { assign(m_parameters.ratioMin, value, &Self::ratioMinChanged); }
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double value) { assign(m_parameters.ratioMax, value, &Self::ratioMaxChanged); }

Q_SIGNALS:
    void calculatorActiveChanged();
    void agcBypassedChanged();
    void valuesChanged();
    void levelInChanged();
    void levelInMinChanged();
    void levelInMaxChanged();
    void thresholdChanged();
    void thresholdMinChanged();
    void thresholdMaxChanged();
    void thresholdOffsetChanged();
    void ratioChanged();
    void ratioMinChanged();
    void ratioMaxChanged();
    void kneeInChanged();
    void kneeInMinChanged();
    void kneeInMaxChanged();

private:
    using Self = AGCCalculator;
    std::optional<CurvePoints> curve() const override;
    void tellValues() override { Q_EMIT valuesChanged(); }

    AgcParameters m_parameters;
};

} // namespace tamble::client
