#pragma once

#include <tamblecommon-math/FilterAlgorithm.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <utility>
#include <vector>

// Short ways to ask for a response.

inline tamble::common::BodePlotCalculation blockOf(std::vector<tamble::common::CalculationItem *> items,
                                                   int resolution = 4096)
{
    tamble::common::BodePlotCalculation block;
    block.items = std::move(items);
    block.resolution = resolution;
    return block;
}

inline void evaluate(tamble::common::BodePlotCalculation &block)
{
    tamble::common::FilterAlgorithm::calculateBodePlotLogarithmic(block, false, 0);
}

struct PointResponse
{
    double level;
    double phase;

    std::complex<double> value() const { return std::polar(std::pow(10, level / 20), phase * std::numbers::pi / 180); }
};

/// Response of one record at one frequency in Hz; the sample rate is 48 kHz.
inline PointResponse responseAt(tamble::common::CalculationItem &record, double frequency)
{
    auto block = blockOf({&record}, 1);
    block.lowestFrequency = frequency;
    evaluate(block);
    const auto &curve = block.results.items.front();
    return {curve.magnitude.front(), curve.phase.front()};
}

inline tamble::common::EqFilter eqBand(int type, double frequency, double gain, double quality = 1, int slope = 0)
{
    tamble::common::EqFilter filter;
    filter.type = type;
    filter.freq = frequency;
    filter.gain = gain;
    filter.quality = quality;
    filter.slope = slope;
    return filter;
}

inline tamble::common::XOverFilter crossover(int type, bool highPass, double frequency = 1000)
{
    tamble::common::XOverFilter filter;
    filter.type = type;
    filter.category = highPass ? 1 : 0;
    filter.freq = frequency;
    return filter;
}

inline tamble::common::FIRFilter fir(int type, int order = 512)
{
    tamble::common::FIRFilter filter;
    filter.type = type;
    filter.order = order;
    return filter;
}
