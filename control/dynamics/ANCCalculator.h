#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Gain curve of an ambient noise compensation over the ambient level.
///
/// Levels and gains are in dB, `ratio` in dB of gain per dB of ambient level. `freezeGain`, `minimumGainMax` and
/// `maximumGainMin` do not enter the curve. Inactive, bypassed and frozen by default, all numbers 0. A change of
/// `minimumGainMax` or `maximumGainMax` is announced by `minimumGainChanged` or `maximumGainChanged`; pages rely on it.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT ANCCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RANCCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(bool ancBypassed READ ancBypassed WRITE setAncBypassed NOTIFY ancBypassedChanged)
    Q_PROPERTY(bool freezeGain READ freezeGain WRITE setFreezeGain NOTIFY freezeGainChanged)
    Q_PROPERTY(double ambientThreshold READ ambientThreshold WRITE setAmbientThreshold NOTIFY ambientThresholdChanged)
    Q_PROPERTY(double ambientThresholdMin READ ambientThresholdMin WRITE setAmbientThresholdMin NOTIFY
                   ambientThresholdMinChanged)
    Q_PROPERTY(double ambientThresholdMax READ ambientThresholdMax WRITE setAmbientThresholdMax NOTIFY
                   ambientThresholdMaxChanged)
    Q_PROPERTY(double ambientThresholdOffset READ ambientThresholdOffset WRITE setAmbientThresholdOffset NOTIFY
                   ambientThresholdOffsetChanged)
    Q_PROPERTY(double minimumGain READ minimumGain WRITE setMinimumGain NOTIFY minimumGainChanged)
    Q_PROPERTY(double minimumGainMin READ minimumGainMin WRITE setMinimumGainMin NOTIFY minimumGainMinChanged)
    Q_PROPERTY(double minimumGainMax READ minimumGainMax WRITE setMinimumGainMax NOTIFY minimumGainMaxChanged)
    Q_PROPERTY(double maximumGain READ maximumGain WRITE setMaximumGain NOTIFY maximumGainChanged)
    Q_PROPERTY(double maximumGainMin READ maximumGainMin WRITE setMaximumGainMin NOTIFY maximumGainMinChanged)
    Q_PROPERTY(double maximumGainMax READ maximumGainMax WRITE setMaximumGainMax NOTIFY maximumGainMaxChanged)
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit ANCCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    bool ancBypassed() const { return m_parameters.bypassed; }
    void setAncBypassed(bool ancBypassed);
    bool freezeGain() const { return m_parameters.freezeGain; }
    void setFreezeGain(bool freezeGain);
    double ambientThreshold() const { return m_parameters.ambientThreshold; }
    void setAmbientThreshold(double ambientThreshold);
    double ambientThresholdMin() const { return m_parameters.ambientThresholdMin; }
    void setAmbientThresholdMin(double ambientThresholdMin);
    double ambientThresholdMax() const { return m_parameters.ambientThresholdMax; }
    void setAmbientThresholdMax(double ambientThresholdMax);
    double ambientThresholdOffset() const { return m_parameters.ambientThresholdOffset; }
    void setAmbientThresholdOffset(double ambientThresholdOffset);
    double minimumGain() const { return m_parameters.minimumGain; }
    void setMinimumGain(double minimumGain);
    double minimumGainMin() const { return m_parameters.minimumGainMin; }
    void setMinimumGainMin(double minimumGainMin);
    double minimumGainMax() const { return m_parameters.minimumGainMax; }
    void setMinimumGainMax(double minimumGainMax);
    double maximumGain() const { return m_parameters.maximumGain; }
    void setMaximumGain(double maximumGain);
    double maximumGainMin() const { return m_parameters.maximumGainMin; }
    void setMaximumGainMin(double maximumGainMin);
    double maximumGainMax() const { return m_parameters.maximumGainMax; }
    void setMaximumGainMax(double maximumGainMax);
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double ratio);
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double ratioMin);
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double ratioMax);
    QVariantList values() const { return m_values; }

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
    friend struct CalculatorSetter;
    void recompute();

    AncParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
