#pragma once

#include "base/ControlExport.h"
#include "dynamics/TransferCurves.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Transfer curve of a ducker: a drop by the ducking level above the threshold.
///
/// Levels are in dB; `thresholdMin` and `thresholdMax` bound the plotted range on both axes. Active and bypassed by
/// default, all levels 0.
///
/// `values` holds the corner points as QPointF, x 0 (left) to 1 (right), y 0 (top) to 1 (bottom). Each setter rebuilds
/// them at once, so `valuesChanged` precedes the signal of the property that was set.
class TAMBLE_CLIENT_CONTROL_EXPORT DuckerCalculator : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDuckerCalculator)
    Q_PROPERTY(bool calculatorActive READ calculatorActive WRITE setCalculatorActive NOTIFY calculatorActiveChanged)
    Q_PROPERTY(bool duckerBypassed READ duckerBypassed WRITE setDuckerBypassed NOTIFY duckerBypassedChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double thresholdMin READ thresholdMin WRITE setThresholdMin NOTIFY thresholdMinChanged)
    Q_PROPERTY(double thresholdMax READ thresholdMax WRITE setThresholdMax NOTIFY thresholdMaxChanged)
    Q_PROPERTY(double duckingLevel READ duckingLevel WRITE setDuckingLevel NOTIFY duckingLevelChanged)
    Q_PROPERTY(double duckingLevelMin READ duckingLevelMin WRITE setDuckingLevelMin NOTIFY duckingLevelMinChanged)
    Q_PROPERTY(double duckingLevelMax READ duckingLevelMax WRITE setDuckingLevelMax NOTIFY duckingLevelMaxChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)

public:
    explicit DuckerCalculator(QObject *parent = nullptr);

    bool calculatorActive() const { return m_parameters.active; }
    void setCalculatorActive(bool calculatorActive);
    bool duckerBypassed() const { return m_parameters.bypassed; }
    void setDuckerBypassed(bool duckerBypassed);
    double threshold() const { return m_parameters.threshold; }
    void setThreshold(double threshold);
    double thresholdMin() const { return m_parameters.thresholdMin; }
    void setThresholdMin(double thresholdMin);
    double thresholdMax() const { return m_parameters.thresholdMax; }
    void setThresholdMax(double thresholdMax);
    double duckingLevel() const { return m_parameters.duckingLevel; }
    void setDuckingLevel(double duckingLevel);
    double duckingLevelMin() const { return m_parameters.duckingLevelMin; }
    void setDuckingLevelMin(double duckingLevelMin);
    double duckingLevelMax() const { return m_parameters.duckingLevelMax; }
    void setDuckingLevelMax(double duckingLevelMax);
    QVariantList values() const { return m_values; }

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
    friend struct CalculatorSetter;
    void recompute();

    DuckerParameters m_parameters;
    QVariantList m_values;
};

} // namespace tamble::client
