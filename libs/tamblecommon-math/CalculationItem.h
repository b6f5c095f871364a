#pragma once

#include "TambleCommonMathExport.h"

#include <string>
#include <vector>

namespace tamble::common {

/// Base of the filter records that the response calculation evaluates; the kind of a record is its dynamic type.
struct TAMBLE_COMMON_MATH_EXPORT CalculationItem
{
    CalculationItem() = default;
    CalculationItem(const CalculationItem &) = default;
    CalculationItem &operator=(const CalculationItem &) = default;
    virtual ~CalculationItem() = default;
};

/// One band of an equaliser.
struct TAMBLE_COMMON_MATH_EXPORT EqFilter : CalculationItem
{
    bool bypass = false;
    int type = 0;
    double freq = 20.0;   ///< Centre or corner frequency in Hz.
    double gain = 0.0;    ///< dB
    double quality = 1.0; ///< Q
    int slope = 0;
};

/// A band with different flanks: `freq` and `quality` describe the lower one, `freq2` and `quality2` the upper one.
struct TAMBLE_COMMON_MATH_EXPORT AsymmetricEqFilter : CalculationItem
{
    bool bypass = false;
    int type = 12;
    double freq = 20.0;
    double gain = 0.0;
    double quality = 1.0;
    int slope = 0;
    double freq2 = 20.0;
    double quality2 = 1.0;
};

/// One side of a crossover; `category` 0 is the low pass, 1 the high pass.
struct TAMBLE_COMMON_MATH_EXPORT XOverFilter : CalculationItem
{
    bool bypass = false;
    int type = 0;
    double freq = 20.0; ///< Corner frequency in Hz.
    int category = 0;
};

/// A finite impulse response filter, given by its corners or by its coefficients.
struct TAMBLE_COMMON_MATH_EXPORT FIRFilter : CalculationItem
{
    bool bypass = false;
    int type = 255;
    int order = 512;
    double freqHP = 1600.0;  ///< High-pass corner in Hz.
    double freqLP = 16000.0; ///< Low-pass corner in Hz.
    int slope = 0;
    std::string header;
    std::vector<double> coefficients;
};

} // namespace tamble::common
