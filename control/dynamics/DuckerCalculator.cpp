#include "dynamics/DuckerCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

DuckerCalculator::DuckerCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void DuckerCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive, &DuckerCalculator::calculatorActiveChanged);
}

void DuckerCalculator::setDuckerBypassed(bool duckerBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, duckerBypassed, &DuckerCalculator::duckerBypassedChanged);
}

void DuckerCalculator::setThreshold(double threshold)
{
    CalculatorSetter::assign(*this, m_parameters.threshold, threshold, &DuckerCalculator::thresholdChanged);
}

void DuckerCalculator::setThresholdMin(double thresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMin, thresholdMin, &DuckerCalculator::thresholdMinChanged);
}

void DuckerCalculator::setThresholdMax(double thresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMax, thresholdMax, &DuckerCalculator::thresholdMaxChanged);
}

void DuckerCalculator::setDuckingLevel(double duckingLevel)
{
    CalculatorSetter::assign(*this, m_parameters.duckingLevel, duckingLevel, &DuckerCalculator::duckingLevelChanged);
}

void DuckerCalculator::setDuckingLevelMin(double duckingLevelMin)
{
    CalculatorSetter::assign(*this, m_parameters.duckingLevelMin, duckingLevelMin,
                             &DuckerCalculator::duckingLevelMinChanged);
}

void DuckerCalculator::setDuckingLevelMax(double duckingLevelMax)
{
    CalculatorSetter::assign(*this, m_parameters.duckingLevelMax, duckingLevelMax,
                             &DuckerCalculator::duckingLevelMaxChanged);
}

void DuckerCalculator::recompute()
{
    const CurvePoints points = duckerCurve(m_parameters);
    m_values = QVariantList(points.cbegin(), points.cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
