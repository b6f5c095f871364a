#include "dynamics/DuckerCalculator.h"

namespace tamble::client {

DuckerCalculator::DuckerCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> DuckerCalculator::curve() const
{
    return duckerCurve(m_parameters);
}

} // namespace tamble::client
