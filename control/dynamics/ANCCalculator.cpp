#include "dynamics/ANCCalculator.h"

namespace tamble::client {

ANCCalculator::ANCCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> ANCCalculator::curve() const
{
    return ancCurve(m_parameters);
}

} // namespace tamble::client
