#include "dynamics/AGCCalculator.h"

namespace tamble::client {

AGCCalculator::AGCCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> AGCCalculator::curve() const
{
    return agcCurve(m_parameters);
}

} // namespace tamble::client
