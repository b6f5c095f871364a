#include "BodePlotCalculation.h"

#include "response/ResponseState.h"

namespace tamble::common {

BodePlotCalculationResults::BodePlotCalculationResults() = default;

BodePlotCalculationResults::BodePlotCalculationResults(const BodePlotCalculationResults &other)
    : items(other.items)
    , aggregated(other.aggregated)
    , m_state(other.m_state ? std::make_unique<response::ResponseState>(*other.m_state) : nullptr)
{}

BodePlotCalculationResults::BodePlotCalculationResults(BodePlotCalculationResults &&other) noexcept = default;

BodePlotCalculationResults &BodePlotCalculationResults::operator=(const BodePlotCalculationResults &other)
{
    if (this != &other)
        *this = BodePlotCalculationResults(other);
    return *this;
}

BodePlotCalculationResults &
BodePlotCalculationResults::operator=(BodePlotCalculationResults &&other) noexcept = default;

BodePlotCalculationResults::~BodePlotCalculationResults() = default;

} // namespace tamble::common
