#include "dynamics/AGCCalculator.h"

#include "dynamics/CalculatorSetter.h"

namespace tamble::client {

AGCCalculator::AGCCalculator(QObject *parent)
    : QObject(parent)
{
    recompute();
}

void AGCCalculator::setCalculatorActive(bool calculatorActive)
{
    CalculatorSetter::assign(*this, m_parameters.active, calculatorActive, &AGCCalculator::calculatorActiveChanged);
}

void AGCCalculator::setAgcBypassed(bool agcBypassed)
{
    CalculatorSetter::assign(*this, m_parameters.bypassed, agcBypassed, &AGCCalculator::agcBypassedChanged);
}

void AGCCalculator::setLevelIn(double levelIn)
{
    CalculatorSetter::assign(*this, m_parameters.levelIn, levelIn, &AGCCalculator::levelInChanged);
}

void AGCCalculator::setLevelInMin(double levelInMin)
{
    CalculatorSetter::assign(*this, m_parameters.levelInMin, levelInMin, &AGCCalculator::levelInMinChanged);
}

void AGCCalculator::setLevelInMax(double levelInMax)
{
    CalculatorSetter::assign(*this, m_parameters.levelInMax, levelInMax, &AGCCalculator::levelInMaxChanged);
}

void AGCCalculator::setThreshold(double threshold)
{
    CalculatorSetter::assign(*this, m_parameters.threshold, threshold, &AGCCalculator::thresholdChanged);
}

void AGCCalculator::setThresholdMin(double thresholdMin)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMin, thresholdMin, &AGCCalculator::thresholdMinChanged);
}

void AGCCalculator::setThresholdMax(double thresholdMax)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdMax, thresholdMax, &AGCCalculator::thresholdMaxChanged);
}

void AGCCalculator::setThresholdOffset(double thresholdOffset)
{
    CalculatorSetter::assign(*this, m_parameters.thresholdOffset, thresholdOffset,
                             &AGCCalculator::thresholdOffsetChanged);
}

void AGCCalculator::setKneeIn(double kneeIn)
{
    CalculatorSetter::assign(*this, m_parameters.kneeIn, kneeIn, &AGCCalculator::kneeInChanged);
}

void AGCCalculator::setKneeInMin(double kneeInMin)
{
    CalculatorSetter::assign(*this, m_parameters.kneeInMin, kneeInMin, &AGCCalculator::kneeInChanged);
}

void AGCCalculator::setKneeInMax(double kneeInMax)
{
    CalculatorSetter::assign(*this, m_parameters.kneeInMax, kneeInMax, &AGCCalculator::kneeInChanged);
}

void AGCCalculator::setRatio(double ratio)
{
    CalculatorSetter::assign(*this, m_parameters.ratio, ratio, &AGCCalculator::ratioChanged);
}

void AGCCalculator::setRatioMin(double ratioMin)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMin, ratioMin, &AGCCalculator::ratioMinChanged);
}

void AGCCalculator::setRatioMax(double ratioMax)
{
    CalculatorSetter::assign(*this, m_parameters.ratioMax, ratioMax, &AGCCalculator::ratioMaxChanged);
}

void AGCCalculator::recompute()
{
    const CurvePoints points = agcCurve(m_parameters);
    m_values = QVariantList(points.cbegin(), points.cend());
    Q_EMIT valuesChanged();
}

} // namespace tamble::client
