#pragma once

#include "base/ControlExport.h"
#include "dynamics/CompressorCurve.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Transfer curve of a compressor with make-up gain and an optional soft knee.
///
/// Levels are in dB, `softKneeInDbu` is the width of the knee, `ratio` the factor n of n : 1. `thresholdMin` and
/// `thresholdMax` bound the plotted range on both axes; the other bounds do not enter the curve. Active and bypassed
/// by default, hard knee, ratios 1, all levels 0.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT CompressorCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCompressorCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(
        bool compressorBypassed READ compressorBypassed WRITE setCompressorBypassed NOTIFY compressorBypassedChanged)
    Q_PROPERTY(bool softKneeActive READ softKneeActive WRITE setSoftKneeActive NOTIFY softKneeActiveChanged)
    Q_PROPERTY(double softKneeInDbu READ softKneeInDbu WRITE setSoftKneeInDbu NOTIFY softKneeInDbuChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    Q_PROPERTY(double makeUpGain READ makeUpGain WRITE setMakeUpGain NOTIFY makeUpGainChanged)
    Q_PROPERTY(double makeUpGainMin READ makeUpGainMin WRITE setMakeUpGainMin NOTIFY makeUpGainMinChanged)
    Q_PROPERTY(double makeUpGainMax READ makeUpGainMax WRITE setMakeUpGainMax NOTIFY makeUpGainMaxChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit CompressorCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    bool compressorBypassed() const { return m_parameters.bypassed; }
    void setCompressorBypassed(bool compressorBypassed);
    bool softKneeActive() const { return m_parameters.softKneeActive; }
    void setSoftKneeActive(bool softKneeActive);
    double softKneeInDbu() const { return m_parameters.softKneeInDbu; }
    void setSoftKneeInDbu(double softKneeInDbu);
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double threshold);
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double thresholdMin);
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double thresholdMax);
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double ratio);
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double ratioMin);
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double ratioMax);
    double makeUpGain() const { return m_parameters.makeUpGain; }
    void setMakeUpGain(double makeUpGain);
    double makeUpGainMin() const { return m_parameters.makeUpGainMin; }
    void setMakeUpGainMin(double makeUpGainMin);
    double makeUpGainMax() const { return m_parameters.makeUpGainMax; }
    void setMakeUpGainMax(double makeUpGainMax);
    QVariantList values() const { return m_values; }

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
    friend struct CalculatorSetter;
    void recompute();

    CompressorParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
