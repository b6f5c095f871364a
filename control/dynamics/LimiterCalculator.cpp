#include "dynamics/LimiterCalculator.h"

namespace tamble::client {

LimiterCalculator::LimiterCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> LimiterCalculator::curve() const
{
    return limiterCurve(m_parameters);
}

} // namespace tamble::client
