#include "dynamics/CompressorCalculator.h"

namespace tamble::client {

CompressorCalculator::CompressorCalculator(QObject *parent)
    : CurveCalculator(parent)
{
    recompute();
}

std::optional<CurvePoints> CompressorCalculator::curve() const
{
    return compressorCurve(m_parameters);
}

} // namespace tamble::client
