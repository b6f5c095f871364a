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
    int slope = 0;        ///< 1 for 6 dB per octave, 2 for 12 dB per octave.
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

/// A finite impulse response filter, given by its corners or by its coefficients. A new one passes everything.
///
/// Types 0 to 2 are linear-phase low pass, high pass and band pass, 3 to 5 the same with minimum phase; any other type
/// is described by its coefficient list.
struct TAMBLE_COMMON_MATH_EXPORT FIRFilter : CalculationItem
{
    bool bypass = false;
    int type = 255;
    int order = 512;         ///< Number of taps.
    double freqHP = 1600.0;  ///< High-pass corner in Hz.
    double freqLP = 16000.0; ///< Low-pass corner in Hz.
    int slope = 0;           ///< Stop-band attenuation of a design: 0 gives 60 dB, 1 80 dB, 2 100 dB.
    std::string header = "VELA-Net FIR-Filter=Thru"; ///< One line that describes the taps; evaluations rewrite it.
    std::vector<double> coefficients = unitImpulse();
    bool generateCoefficients = true; ///< Types 0 to 5: whether the corners count, or else the coefficient list.

private:
    static std::vector<double> unitImpulse()
    {
        std::vector<double> taps(512, 0.0);
        taps.front() = 1.0;
        return taps;
    }
};

} // namespace tamble::common
