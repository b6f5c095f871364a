#pragma once

#include "FilterTypes.h"
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

/// One band of an equaliser. Its type, an EqType, chooses the analogue prototype H(s), with s normalised to `freq`, Q
/// for `quality` and A for 10^(gain/40); types that are not listed are flat.
///
///     0   peaking, cuts mirror boosts   (s^2 + s A/P + 1) / (s^2 + s/(A P) + 1) with P = Q
///     6   proportional Q                as 0, with P = Q max(A, 1/A)
///     7   constant Q                    as 0, with P = Q/A: the poles keep Q
///     1   low shelf                     (A + s) / (1/A + s); with slope 2 as 10, Q 0.707
///     2   high shelf                    (1 + A s) / (1 + s/A); with slope 2 as 11, Q 0.707
///     10  low shelf with Q              A (s^2 + s sqrt(A)/Q + A) / (A s^2 + s sqrt(A)/Q + 1)
///     11  high shelf with Q             A (A s^2 + s sqrt(A)/Q + 1) / (s^2 + s sqrt(A)/Q + A)
///     3   high pass                     s / (s + 1); with slope 2 s^2 / (s^2 + s/Q + 1)
///     4   low pass                      1 / (s + 1); with slope 2 1 / (s^2 + s/Q + 1)
///     5   all pass                      (s^2 - s/Q + 1) / (s^2 + s/Q + 1); with slope 1 (1 - s) / (1 + s)
///     8   band pass                     (s/Q) / (s^2 + s/Q + 1)
///     9   notch                         (s^2 + 1) / (s^2 + s/Q + 1)
struct TAMBLE_COMMON_MATH_EXPORT EqFilter : CalculationItem
{
    bool bypass = false;
    int type = 0;
    double freq = 20.0;   ///< Centre or corner frequency in Hz.
    double gain = 0.0;    ///< dB
    double quality = 1.0; ///< Q
    int slope = 0;        ///< A FilterSlope: 1 for 6 dB per octave, 2 for 12 dB per octave.
};

/// A band with different flanks: between its two frequencies it has `gain`, beyond them 0 dB. They come in either
/// order; the lower frequency is the lower flank, and each flank keeps its own Q. The prototype is a high shelf with Q
/// (EqFilter type 11) of +gain at the lower frequency, times one of -gain at the upper one, whatever `type` says.
struct TAMBLE_COMMON_MATH_EXPORT AsymmetricEqFilter : CalculationItem
{
    bool bypass = false;
    int type = int(EqType::Asymmetric);
    double freq = 20.0;
    double gain = 0.0;
    double quality = 1.0;
    int slope = 0;
    double freq2 = 20.0;
    double quality2 = 1.0;
};

/// One side of a crossover, by type; `category` 1 is the high pass, any other the low pass. Types but these are flat.
///
///     0       through
///     1       6 dB per octave, first order
///     2 to 9  12 dB per octave with Q 0.5, 0.6, 0.7, 0.8, 1.0, 1.2, 1.5 and 2.0
///     10, 13, 15  Bessel with 12, 18 and 24 dB per octave, -3 dB at the corner
///     11, 14, 16  Butterworth with 12, 18 and 24 dB per octave, -3 dB at the corner
///     12, 17      Linkwitz-Riley with 12 and 24 dB per octave, -6 dB at the corner
///
/// The low pass is a product of 1 / (s^2/w^2 + s/(w Q) + 1), s normalised to `freq`; the high pass has 1/s for s.
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
