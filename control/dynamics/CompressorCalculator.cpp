#include "dynamics/CompressorCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

CompressorCalculator::CompressorCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void CompressorCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive,
                             &CompressorCalculator::calculatorActiveChanged);
}

void CompressorCalculator::setCompressorBypassed(bool compressorBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, compressorBypassed,
                             &CompressorCalculator::compressorBypassedChanged);
}

void CompressorCalculator::setSoftKneeActive(bool softKneeActive)
{
    CalculatorSetter::assign(*this, m_parameters.softKneeActive, softKneeActive,
                             &CompressorCalculator::softKneeActiveChanged);
}

void CompressorCalculator::setSoftKneeInDbu(double softKneeInDbu)
{
    CalculatorSetter::assign(*this, m_parameters.softKneeInDbu, softKneeInDbu,
                             &CompressorCalculator::softKneeInDbuChanged);
}

void CompressorCalculator::setThreshold(double threshold)
{
    CalculatorSetter::assign(*this, m_parameters.threshold, threshold, &CompressorCalculator::thresholdChanged);
}

void CompressorCalculator::setThresholdMin(double thresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMin, thresholdMin,
                             &CompressorCalculator::thresholdMinChanged);
}

void CompressorCalculator::setThresholdMax(double thresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMax, thresholdMax,
                             &CompressorCalculator::thresholdMaxChanged);
}

void CompressorCalculator::setRatio(double ratio)
{
    CalculatorSetter::assign(*this, m_parameters.ratio, ratio, &CompressorCalculator::ratioChanged);
}

void CompressorCalculator::setRatioMin(double ratioMin)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMin, ratioMin, &CompressorCalculator::ratioMinChanged);
}

void CompressorCalculator::setRatioMax(double ratioMax)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMax, ratioMax, &CompressorCalculator::ratioMaxChanged);
}

void CompressorCalculator::setMakeUpGain(double makeUpGain)
{
    CalculatorSetter::assign(*this, m_parameters.makeUpGain, makeUpGain, &CompressorCalculator::makeUpGainChanged);
}

void CompressorCalculator::setMakeUpGainMin(double makeUpGainMin)
{
    CalculatorSetter::assign(*this, m_parameters.makeUpGainMin, makeUpGainMin,
                             &CompressorCalculator::makeUpGainMinChanged);
}

void CompressorCalculator::setMakeUpGainMax(double makeUpGainMax)
{
    CalculatorSetter::assign(*this, m_parameters.makeUpGainMax, makeUpGainMax,
                             &CompressorCalculator::makeUpGainMaxChanged);
}

void CompressorCalculator::recompute()
{
    const CurvePoints points = compressorCurve(m_parameters);
    m_values = QVariantList(points.cbegin(), points.cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
