#pragma once

#include "BodePlotCalculation.h"
#include "TambleCommonMathExport.h"

#include <vector>

namespace tamble::common {

/// Frequency responses of equaliser bands, crossovers and FIR filters as a processor at the given sample rate has them.
///
/// Bands and crossovers are analogue prototypes, mapped by the bilinear transform prewarped at their corner f0: their
/// response at f is H(j tan(pi f / fs) / tan(pi f0 / fs)). Bands follow Bristow-Johnson's cookbook for audio EQ
/// (W3C note 2021); crossovers are Butterworth, Bessel (-3 dB at the corner) and Linkwitz-Riley filters. Taps h give
/// sum h[m] exp(-j 2 pi f m / fs); designed ones are ideal bands in Kaiser's window (1974), whose phase is told about
/// their own delay when it is linear. Where the level is above -120 dB it is exact within 1e-6 dB and the phase within
/// 1e-6 degrees.
class TAMBLE_COMMON_MATH_EXPORT FilterAlgorithm
{
public:
    /// Fills block.results with the response of every record and of all in series, at `resolution` frequencies from
    /// the lowest to the highest in equal ratios, both included.
    ///
    /// With `single` only the record at `index` is evaluated; the others keep their curves, whatever has become of
    /// their fields, and the sum is taken anew. An index out of range only takes the sum. Results that do not belong to
    /// the block's number of records, range, sample rate and resolution make the call evaluate everything. Either way
    /// gives the same bits for the same fields.
    ///
    /// Of an FIR record the header is rewritten to describe the taps in force, unless it is a text of the user's own;
    /// nothing else of a record changes. Fields may hold anything: NaN counts as the field's default, other values are
    /// clamped (frequencies to 0.01 Hz .. 0.499 of the sample rate, Q to 0.05 .. 1000, gain to -120 .. 120 dB), types
    /// without a meaning are flat. Frequencies above half the sample rate repeat the value there. All results are
    /// finite and nothing throws but an exhausted memory.
    ///
    /// Once the block has been evaluated, a call with `single` allocates nothing as long as the number of taps of an
    /// FIR record does not grow. Different blocks may be evaluated in different threads at the same time.
    static void calculateBodePlotLogarithmic(BodePlotCalculation &block, bool single, unsigned index);

    /// The level in dB of all records in series, as in results.aggregated.magnitude but for rounding (1e-9 dB).
    ///
    /// For plots that show neither phases nor single records: sixteen bands take about a tenth of the time. The results
    /// of the block stay as they are; records and limits are treated as above, FIR headers included.
    static void calculateAggregatedLevel(BodePlotCalculation &block, std::vector<double> &level);

private:
    static response::ResponseState &fittingState(BodePlotCalculation &block);
};

} // namespace tamble::common
