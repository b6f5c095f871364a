#include "dynamics/CurveCalculator.h"

namespace tamble::client {

void CurveCalculator::recompute()
{
    const std::optional<CurvePoints> points = curve();
    m_values = points ? QVariantList(points->cbegin(), points->cend()) : QVariantList();
    if (points)
        tellValues();
}

} // namespace tamble::client
