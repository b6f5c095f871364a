#include "dynamics/NoiseGateCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

NoiseGateCalculator::NoiseGateCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void NoiseGateCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive,
                             &NoiseGateCalculator::calculatorActiveChanged);
}

void NoiseGateCalculator::setGateBypassed(bool gateBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, gateBypassed, &NoiseGateCalculator::gateBypassedChanged);
}

void NoiseGateCalculator::setThreshold(double threshold)
{
    CalculatorSetter::assign(*this, m_parameters.threshold, threshold, &NoiseGateCalculator::thresholdChanged);
}

void NoiseGateCalculator::setThresholdMin(double thresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMin, thresholdMin, &NoiseGateCalculator::thresholdMinChanged);
}

void NoiseGateCalculator::setThresholdMax(double thresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMax, thresholdMax, &NoiseGateCalculator::thresholdMaxChanged);
}

void NoiseGateCalculator::setDepth(double depth)
{
    CalculatorSetter::assign(*this, m_parameters.depth, depth, &NoiseGateCalculator::depthChanged);
}

void NoiseGateCalculator::setDepthMin(double depthMin)
{
    CalculatorSetter::assign(*this, m_parameters.depthMin, depthMin, &NoiseGateCalculator::depthMinChanged);
}

void NoiseGateCalculator::setDepthMax(double depthMax)
{
    CalculatorSetter::assign(*this, m_parameters.depthMax, depthMax, &NoiseGateCalculator::depthMaxChanged);
}

void NoiseGateCalculator::recompute()
{
    const std::optional<CurvePoints> points = gateCurve(m_parameters);
    m_values.clear();
    if (!points)
        return; // parameters out of bounds: there is no curve, and by convention no signal either
    m_values = QVariantList(points->cbegin(), points->cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
