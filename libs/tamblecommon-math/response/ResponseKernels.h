#pragma once

#include "response/Section.h"

#include <cstddef>
#include <span>

namespace tamble::common::response {

/// Points that the kernels take at a time. A block of intermediate values stays in the first-level cache.
constexpr std::size_t blockSize = 256;

/// Taps of one group: groups are combined by Horner's rule in z^-16.
constexpr std::size_t tapGroup = 16;

/// H at the points of a block: |H|^2 = numerator / denominator, and re + j im is H times some positive number.
struct alignas(64) BlockResponse
{
    double numerator[blockSize];
    double denominator[blockSize];
    double re[blockSize];
    double im[blockSize];
};

/// One block of the grid's tables for taps.
struct BlockAngles
{
    const double *cosHalf;
    const double *sinHalf;
    const double *cosSixteen;
    const double *sinSixteen;
};

/// The loops over points, compiled for one instruction set.
///
/// Every function works on `blockSize` points. Numbers of different instruction sets may differ in the last digits,
/// as some multiply and add with one rounding; within one set a point gives the same bits in every block.
struct ResponseKernels
{
    const char *name;

    /// Response of one section at prewarped frequencies tan(pi f / fs).
    void (*oneSection)(const Section &section, const double *tangents, BlockResponse &response);

    /// Response of two sections in series.
    void (*twoSections)(const Section &first, const Section &second, const double *tangents, BlockResponse &response);

    /// Multiplies numerator and denominator by those of two sections and leaves re and im alone.
    void (*multiplyPowers)(const Section &first, const Section &second, const double *tangents,
                           BlockResponse &response);

    /// Multiplies them by those of another response.
    void (*multiplyResponse)(const BlockResponse &factor, BlockResponse &response);

    /// Scales both so that the denominator is from 1 to 2, which leaves room for the powers of four more sections.
    void (*reduce)(BlockResponse &response);

    /// Response of `groups` groups of taps, each given as 8 sums and 8 differences of the taps that lie around its
    /// middle (see TapGroups).
    void (*taps)(const double *groupValues, std::size_t groups, const BlockAngles &angles, BlockResponse &response);

    /// The same for one half of symmetric taps, from the middle one outwards and doubled but for the middle one: the
    /// response about the delay of the middle tap, which is real.
    void (*symmetricTaps)(const double *groupValues, std::size_t groups, const BlockAngles &angles,
                          BlockResponse &response);

    /// 10 log10(|H|^2) in dB, from -240 (also for a zero) to 240.
    void (*level)(const BlockResponse &response, double *level);

    /// The angle of H in degrees, above -180 up to 180, and 0 where |H|^2 is at the lower end of the level.
    void (*phase)(const BlockResponse &response, double *phase);

    /// sum[i] += value[i] for i < count.
    void (*add)(const double *value, std::size_t count, double *sum);

    /// The same for four curves, one after the other.
    void (*addFour)(const double *const *values, std::size_t count, double *sum);

    /// Limits a sum of levels to -240 .. 240 dB.
    void (*clampLevels)(double *level);

    /// Brings a sum of phases back above -180 up to 180 degrees.
    void (*wrapPhases)(double *phase);
};

/// The kernels that this processor can run, slowest first.
std::span<const ResponseKernels *const> availableKernels();

/// The last of them.
const ResponseKernels &responseKernels();

} // namespace tamble::common::response
