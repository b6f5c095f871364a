#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Transfer curve of an automatic gain control around its target level.
///
/// Levels are in dB, `threshold` is relative to `levelIn`, `ratio` is a plain factor. The bounds of `levelIn`, `kneeIn`
/// and `ratio` serve the controls around the plot and do not enter the curve. Inactive and bypassed by default, all
/// numbers 0. A change of `kneeInMin` or `kneeInMax` is announced by `kneeInChanged`; pages rely on it.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT AGCCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAGCCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(bool agcBypassed READ agcBypassed WRITE setAgcBypassed NOTIFY agcBypassedChanged)
    Q_PROPERTY(double levelIn READ levelIn WRITE setLevelIn NOTIFY levelInChanged)
    Q_PROPERTY(double levelInMin READ levelInMin WRITE setLevelInMin NOTIFY levelInMinChanged)
    Q_PROPERTY(double levelInMax READ levelInMax WRITE setLevelInMax NOTIFY levelInMaxChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    Q_PROPERTY(double thresholdOffset READ thresholdOffset WRITE setThresholdOffset NOTIFY thresholdOffsetChanged)
    Q_PROPERTY(double kneeIn READ kneeIn WRITE setKneeIn NOTIFY kneeInChanged)
    Q_PROPERTY(double kneeInMin READ kneeInMin WRITE setKneeInMin NOTIFY kneeInMinChanged)
    Q_PROPERTY(double kneeInMax READ kneeInMax WRITE setKneeInMax NOTIFY kneeInMaxChanged)
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    Q_PROPERTY(double ratioMin READ ratioMin WRITE setRatioMin NOTIFY ratioMinChanged)
    Q_PROPERTY(double ratioMax READ ratioMax WRITE setRatioMax NOTIFY ratioMaxChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit AGCCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    bool agcBypassed() const { return m_parameters.bypassed; }
    void setAgcBypassed(bool agcBypassed);
    double levelIn() const { return m_parameters.levelIn; }
    void setLevelIn(double levelIn);
    double levelInMin() const { return m_parameters.levelInMin; }
    void setLevelInMin(double levelInMin);
    double levelInMax() const { return m_parameters.levelInMax; }
    void setLevelInMax(double levelInMax);
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double threshold);
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double thresholdMin);
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double thresholdMax);
    double thresholdOffset() const { return m_parameters.thresholdOffset; }
    void setThresholdOffset(double thresholdOffset);
    double kneeIn() const { return m_parameters.kneeIn; }
    void setKneeIn(double kneeIn);
    double kneeInMin() const { return m_parameters.kneeInMin; }
    void setKneeInMin(double kneeInMin);
    double kneeInMax() const { return m_parameters.kneeInMax; }
    void setKneeInMax(double kneeInMax);
    double ratio() const { return m_parameters.ratio; }
    void setRatio(double ratio);
    double ratioMin() const { return m_parameters.ratioMin; }
    void setRatioMin(double ratioMin);
    double ratioMax() const { return m_parameters.ratioMax; }
    void setRatioMax(double ratioMax);
    QVariantList values() const { return m_values; }

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
    friend struct CalculatorSetter;
    void recompute();

    AgcParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
