#pragma once

#include "CalculationItem.h"
#include "TambleCommonMathExport.h"

#include <memory>
#include <vector>

namespace tamble::common {

namespace response {
struct ResponseState;
}

/// One curve of a frequency response, a value per plotted frequency.
struct FilterResponse
{
    std::vector<double> magnitude; ///< dB, from -240 to 240
    std::vector<double> phase;     ///< Degrees, above -180 up to 180; 0 where the magnitude is at its lower end.
};

/// What FilterAlgorithm found for a BodePlotCalculation. Only FilterAlgorithm writes here; a copy stands alone.
struct TAMBLE_COMMON_MATH_EXPORT BodePlotCalculationResults
{
    BodePlotCalculationResults();
    BodePlotCalculationResults(const BodePlotCalculationResults &other);
    BodePlotCalculationResults(BodePlotCalculationResults &&other) noexcept;
    BodePlotCalculationResults &operator=(const BodePlotCalculationResults &other);
    BodePlotCalculationResults &operator=(BodePlotCalculationResults &&other) noexcept;
    ~BodePlotCalculationResults();

    std::vector<FilterResponse> items; ///< One curve per record, in the order of the records.
    FilterResponse aggregated;         ///< All records in series.

private:
    friend class FilterAlgorithm;

    // Tables and parameters of the last evaluation, so that the next one repeats nothing.
    std::unique_ptr<response::ResponseState> m_state;
};

/// What a frequency response is asked for, and the answer.
struct BodePlotCalculation
{
    double lowestFrequency = 20.0;     ///< First plotted frequency in Hz; finite and above 0, else every curve is flat.
    double highestFrequency = 20000.0; ///< Last one, likewise. Below the first the plot runs downwards.
    double sampleRate = 48000.0;       ///< In Hz; finite and at least 1, else every curve is flat.
    int resolution = 4096;             ///< Number of plotted frequencies, up to 1048576; 0 and less give empty curves.

    /// The filters. They are not owned: each must outlive the calls that evaluate the block. A null pointer and a
    /// record of an unknown kind give a flat curve.
    std::vector<CalculationItem *> items;

    BodePlotCalculationResults results;
};

} // namespace tamble::common
