#include "dynamics/NoiseGateCalculator.h"

namespace tamble::client {

NoiseGateCalculator::NoiseGateCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> NoiseGateCalculator::curve() const
{
    return gateCurve(m_parameters);
}

} // namespace tamble::client
