// The frequency response of a row of bands, for the same harness as in BenchHooks.cpp.

#include <tamblecommon-math/FilterAlgorithm.h>

#include <QtCore/qglobal.h>

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace tamble::common;

namespace {

struct Row
{
    std::vector<EqFilter> filters;
    BodePlotCalculation block;
    std::vector<double> level;
    bool odd = false;
};

void setBand(EqFilter &filter, const double *freqGainQuality, bool odd)
{
    filter.freq = freqGainQuality[0];
    // A band that is equal to the last time would not be evaluated.
    filter.gain = freqGainQuality[1] + (odd ? 1e-9 : 0.0);
    filter.quality = freqGainQuality[2];
}

} // namespace

/// Evaluates `filters` peaking bands, each given by frequency in Hz, gain in dB and Q, at `points` frequencies from 20
/// Hz to 20 kHz and copies the level of all in series to `level`. Task 0: that level alone. 1: level and phase of every
/// band and of all. 2: as 1, with no band changed since the last call but number 7.
extern "C" Q_DECL_EXPORT void tamble_bench_response(int task, const double *freqGainQuality, int filters, int points,
                                                    double rate, double *level)
{
    static Row row;
    const auto count = std::size_t(filters);
    if (row.filters.size() != count) {
        row.filters.resize(count);
        row.block.items.clear();
        for (EqFilter &filter : row.filters)
            row.block.items.push_back(&filter);
    }
    row.block.resolution = points;
    row.block.sampleRate = rate;
    row.odd = task != 0 && !row.odd;

    constexpr std::size_t changing = 7;
    for (std::size_t i = 0; i < count; ++i)
        if (task != 2 || i == changing)
            setBand(row.filters[i], freqGainQuality + 3 * i, row.odd);

    if (task == 0) {
        FilterAlgorithm::calculateAggregatedLevel(row.block, row.level);
        std::copy(row.level.begin(), row.level.end(), level);
    } else {
        FilterAlgorithm::calculateBodePlotLogarithmic(row.block, task == 2, unsigned(changing));
        const std::vector<double> &sum = row.block.results.aggregated.magnitude;
        std::copy(sum.begin(), sum.end(), level);
    }
}
