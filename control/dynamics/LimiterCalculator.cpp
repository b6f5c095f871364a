#include "dynamics/LimiterCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

LimiterCalculator::LimiterCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void LimiterCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive, &LimiterCalculator::calculatorActiveChanged);
}

void LimiterCalculator::setThreshold(double threshold)
{
    CalculatorSetter::assign(*this, m_parameters.threshold, threshold, &LimiterCalculator::thresholdChanged);
}

void LimiterCalculator::setThresholdMin(double thresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMin, thresholdMin, &LimiterCalculator::thresholdMinChanged);
}

void LimiterCalculator::setThresholdMax(double thresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMax, thresholdMax, &LimiterCalculator::thresholdMaxChanged);
}

void LimiterCalculator::setLimiterBypassed(bool limiterBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, limiterBypassed, &LimiterCalculator::limiterBypassedChanged);
}

void LimiterCalculator::recompute()
{
    const CurvePoints points = limiterCurve(m_parameters);
    m_values = QVariantList(points.cbegin(), points.cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
