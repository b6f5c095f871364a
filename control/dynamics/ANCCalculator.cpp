#include "dynamics/ANCCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

ANCCalculator::ANCCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void ANCCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive, &ANCCalculator::calculatorActiveChanged);
}

void ANCCalculator::setAncBypassed(bool ancBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, ancBypassed, &ANCCalculator::ancBypassedChanged);
}

void ANCCalculator::setFreezeGain(bool freezeGain)
{
    CalculatorSetter::assign(*this, m_parameters.freezeGain, freezeGain, &ANCCalculator::freezeGainChanged);
}

void ANCCalculator::setAmbientThreshold(double ambientThreshold)
{
    CalculatorSetter::assign(*this, m_parameters.ambientThreshold, ambientThreshold,
                             &ANCCalculator::ambientThresholdChanged);
}

void ANCCalculator::setAmbientThresholdMin(double ambientThresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.ambientThresholdMin, ambientThresholdMin,
                             &ANCCalculator::ambientThresholdMinChanged);
}

void ANCCalculator::setAmbientThresholdMax(double ambientThresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.ambientThresholdMax, ambientThresholdMax,
                             &ANCCalculator::ambientThresholdMaxChanged);
}

void ANCCalculator::setAmbientThresholdOffset(double ambientThresholdOffset)
{
    CalculatorSetter::assign(*this, m_parameters.ambientThresholdOffset, ambientThresholdOffset,
                             &ANCCalculator::ambientThresholdOffsetChanged);
}

void ANCCalculator::setMinimumGain(double minimumGain)
{
    CalculatorSetter::assign(*this, m_parameters.minimumGain, minimumGain, &ANCCalculator::minimumGainChanged);
}

void ANCCalculator::setMinimumGainMin(double minimumGainMin)
{
    CalculatorSetter::assign(*this, m_parameters.minimumGainMin, minimumGainMin, &ANCCalculator::minimumGainMinChanged);
}

void ANCCalculator::setMinimumGainMax(double minimumGainMax)
{
    CalculatorSetter::assign(*this, m_parameters.minimumGainMax, minimumGainMax, &ANCCalculator::minimumGainChanged);
}

void ANCCalculator::setMaximumGain(double maximumGain)
{
    CalculatorSetter::assign(*this, m_parameters.maximumGain, maximumGain, &ANCCalculator::maximumGainChanged);
}

void ANCCalculator::setMaximumGainMin(double maximumGainMin)
{
    CalculatorSetter::assign(*this, m_parameters.maximumGainMin, maximumGainMin, &ANCCalculator::maximumGainMinChanged);
}

void ANCCalculator::setMaximumGainMax(double maximumGainMax)
{
    CalculatorSetter::assign(*this, m_parameters.maximumGainMax, maximumGainMax, &ANCCalculator::maximumGainChanged);
}

void ANCCalculator::setRatio(double ratio)
{
    CalculatorSetter::assign(*this, m_parameters.ratio, ratio, &ANCCalculator::ratioChanged);
}

void ANCCalculator::setRatioMin(double ratioMin)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMin, ratioMin, &ANCCalculator::ratioMinChanged);
}

void ANCCalculator::setRatioMax(double ratioMax)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMax, ratioMax, &ANCCalculator::ratioMaxChanged);
}

void ANCCalculator::recompute()
{
    const CurvePoints points = ancCurve(m_parameters);
    m_values = QVariantList(points.cbegin(), points.cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
