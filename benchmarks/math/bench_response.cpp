#include <tamblecommon-math/FilterAlgorithm.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <vector>

using namespace tamble::common;

namespace {

// Sixteen bands over the audible range at the default 4096 points.
class Bands
{
public:
    Bands()
        : m_filters(16)
    {
        for (std::size_t i = 0; i < m_filters.size(); ++i) {
            m_filters[i].freq = 25 * std::pow(720.0, double(i) / 15);
            m_filters[i].gain = (i % 2 == 0 ? 3.0 : -3.0) + double(i % 5);
            m_filters[i].quality = 0.7 + 0.2 * double(i);
            block.items.push_back(&m_filters[i]);
        }
        FilterAlgorithm::calculateBodePlotLogarithmic(block, false, 0);
    }

    // What is equal to the last time would not be evaluated.
    void change(std::size_t i) { m_filters[i].gain += m_filters[i].gain > 0 ? -1e-3 : 1e-3; }
    void changeAll()
    {
        for (std::size_t i = 0; i < m_filters.size(); ++i)
            change(i);
    }

    BodePlotCalculation block;

private:
    std::vector<EqFilter> m_filters;
};

void everything(benchmark::State &state)
{
    Bands bands;
    for (auto _ : state) {
        bands.changeAll();
        FilterAlgorithm::calculateBodePlotLogarithmic(bands.block, false, 0);
    }
}
BENCHMARK(everything)->Name("response/16 bands")->Unit(benchmark::kMicrosecond);

void unchanged(benchmark::State &state)
{
    Bands bands;
    for (auto _ : state)
        FilterAlgorithm::calculateBodePlotLogarithmic(bands.block, false, 0);
}
BENCHMARK(unchanged)->Name("response/16 bands, none changed")->Unit(benchmark::kMicrosecond);

void oneOfMany(benchmark::State &state)
{
    Bands bands;
    for (auto _ : state) {
        bands.change(7);
        FilterAlgorithm::calculateBodePlotLogarithmic(bands.block, true, 7);
    }
}
BENCHMARK(oneOfMany)->Name("response/1 of 16 bands changed")->Unit(benchmark::kMicrosecond);

void levelOnly(benchmark::State &state)
{
    Bands bands;
    std::vector<double> level;
    for (auto _ : state) {
        bands.changeAll();
        FilterAlgorithm::calculateAggregatedLevel(bands.block, level);
    }
}
BENCHMARK(levelOnly)->Name("response/16 bands, level of the sum alone")->Unit(benchmark::kMicrosecond);

void firstTime(benchmark::State &state)
{
    EqFilter filter;
    filter.gain = 6;
    for (auto _ : state) {
        BodePlotCalculation block;
        block.items = {&filter};
        FilterAlgorithm::calculateBodePlotLogarithmic(block, false, 0);
    }
}
BENCHMARK(firstTime)->Name("response/1 band in a new block")->Unit(benchmark::kMicrosecond);

using Clock = std::chrono::steady_clock;

// Seconds for one evaluation of the only record, which `change` alters before each.
template <typename Change>
double secondsPerCall(BodePlotCalculation &block, Change &&change)
{
    constexpr int calls = 20;
    const auto begin = Clock::now();
    for (int i = 0; i < calls; ++i) {
        change();
        FilterAlgorithm::calculateBodePlotLogarithmic(block, true, 0);
    }
    return std::chrono::duration<double>(Clock::now() - begin).count() / calls;
}

// A record with taps beside an equaliser band, by turns, so that both meet the same state of the machine.
void taps(benchmark::State &state, int type)
{
    EqFilter band;
    BodePlotCalculation bandBlock;
    bandBlock.items = {&band};
    FIRFilter fir;
    fir.type = type;
    std::generate(fir.coefficients.begin(), fir.coefficients.end(), [m = 0.0]() mutable { return std::cos(m += 1); });
    BodePlotCalculation firBlock;
    firBlock.items = {&fir};

    std::vector<double> ratios;
    double seconds = 0;
    for (auto _ : state) {
        const double bandSeconds = secondsPerCall(bandBlock, [&band] { band.gain = band.gain > 5 ? 5 : 6; });
        const double firSeconds = secondsPerCall(firBlock, [&fir] {
            fir.coefficients.front() += 1e-3;
            fir.freqHP += 1e-3;
        });
        state.SetIterationTime(firSeconds);
        ratios.push_back(firSeconds / bandSeconds);
        seconds += firSeconds;
    }
    std::nth_element(ratios.begin(), ratios.begin() + std::ptrdiff_t(ratios.size() / 2), ratios.end());
    state.counters["bands"] = ratios[ratios.size() / 2];
}
BENCHMARK_CAPTURE(taps, given, 255)->Name("response/512 taps, given")->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(taps, linear, 1)
    ->Name("response/512 taps, high pass")
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(taps, minimum, 4)
    ->Name("response/512 taps, minimum-phase high pass")
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
