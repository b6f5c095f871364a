#pragma once

#include "response/ResponseKernels.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

// The loops behind ResponseKernels for levels, phases and sums; they keep to what ResponseKernels.cpp asks for.
namespace tamble::common::response::loops {

inline std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

inline double fromBits(std::uint64_t bits)
{
    return std::bit_cast<double>(bits);
}

inline constexpr double highestLevel = 240;
inline constexpr double lowestLevel = -240;
inline constexpr double lowestRatio = 1e-24;

// Written out, as the references of std::min and std::max make slower vector code here.
inline double limitedLevel(double level)
{
    const double capped = level < highestLevel ? level : highestLevel;
    return capped > lowestLevel ? capped : lowestLevel;
}

inline void multiplyResponse(const BlockResponse &__restrict factor, BlockResponse &__restrict response)
{
    for (std::size_t i = 0; i < blockSize; ++i) {
        response.numerator[i] *= factor.numerator[i];
        response.denominator[i] *= factor.denominator[i];
    }
}

inline constexpr std::uint64_t exponentField = 0xfff0000000000000;

inline void reduce(BlockResponse &response)
{
    constexpr std::uint64_t twiceTheBias = 2046ull << 52;
    for (std::size_t i = 0; i < blockSize; ++i) {
        const double scale = fromBits(twiceTheBias - (bitsOf(response.denominator[i]) & exponentField));
        response.numerator[i] = std::max(1e-60, std::min(1e60, response.numerator[i] * scale));
        response.denominator[i] *= scale;
    }
}

// 20 log10(e) artanh(s) by powers of s^2, the polynomial of least maximum error up to s = 1/5: 1.4e-15 dB.
inline double artanhInDb(double s)
{
    const double u = s * s;
    double p = 0.7624827430493329513;
    p = p * u + 0.7838086292188286077;
    p = p * u + 0.9652791514436492432;
    p = p * u + 1.240838399712634933;
    p = p * u + 1.737177952786165235;
    p = p * u + 2.895296545927944384;
    p = p * u + 8.685889638065137469;
    return p * s;
}

inline void level(const BlockResponse &response, double *__restrict level)
{
    constexpr double dbPerOctave = 3.0102999566398119521; // 10 log10(2)
    constexpr std::uint64_t exponentBias = 1024ull << 52;
    constexpr std::uint64_t half = 1ull << 51;
    constexpr std::uint64_t twoTo52 = 0x4330000000000000;

    for (std::size_t i = 0; i < blockSize; ++i) {
        const double n = response.numerator[i];
        const double d = response.denominator[i];
        // As numbers, the bits of a double are nearly its logarithm: their difference, rounded to a whole exponent,
        // is a power of two that leaves a quotient within 2/3 .. 3/2.
        const std::uint64_t exponent = bitsOf(n) - bitsOf(d) + (exponentBias + half);
        const double near = fromBits(bitsOf(n) - (exponent & exponentField) + exponentBias);
        const double octaves = fromBits((exponent >> 52) | twoTo52) - (0x1p52 + 1024);
        const double db = octaves * dbPerOctave + artanhInDb((near - d) / (near + d));
        level[i] = n > lowestRatio * d ? limitedLevel(db) : lowestLevel;
    }
}

// The arc tangent in degrees by powers of t^2, as above up to t = tan(22.5 degrees): 1.1e-14 degrees.
inline double arcTangentInDegrees(double t)
{
    const double u = t * t;
    double p = -1.402210142372250184;
    p = p * u + 2.839521800077381249;
    p = p * u - 3.714084811393057528;
    p = p * u + 4.394059210613719841;
    p = p * u - 5.207631532425592303;
    p = p * u + 6.366142743928422707;
    p = p * u - 8.185109660998630414;
    p = p * u + 11.45915587369907484;
    p = p * u - 19.09859317080120575;
    p = p * u + 57.29577951308179911;
    return p * t;
}

inline void phase(const BlockResponse &response, double *__restrict phase)
{
    constexpr double tangentOf22 = 0.41421356237309504880;

    for (std::size_t i = 0; i < blockSize; ++i) {
        const double re = response.re[i];
        const double im = response.im[i];
        const double x = std::fabs(re);
        const double y = std::fabs(im);
        const double longer = std::max(y, x);
        const double shorter = std::min(y, x);
        // Between 22.5 and 45 degrees the angle is taken from 45.
        const bool isSteep = shorter > longer * tangentOf22;
        const double t = (isSteep ? shorter - longer : shorter) / (isSteep ? shorter + longer : longer);
        double angle = arcTangentInDegrees(t) + (isSteep ? 45.0 : 0.0);
        angle = y > x ? 90 - angle : angle;
        angle = re < 0 ? 180 - angle : angle;
        angle = im < 0 && angle < 180 ? -angle : angle;
        phase[i] = response.numerator[i] > lowestRatio * response.denominator[i] ? angle : 0.0;
    }
}

inline void add(const double *__restrict value, std::size_t count, double *__restrict sum)
{
    for (std::size_t i = 0; i < count; ++i)
        sum[i] += value[i];
}

inline void addFour(const double *const *values, std::size_t count, double *__restrict sum)
{
    const double *__restrict a = values[0];
    const double *__restrict b = values[1];
    const double *__restrict c = values[2];
    const double *__restrict d = values[3];
    for (std::size_t i = 0; i < count; ++i)
        sum[i] = (((sum[i] + a[i]) + b[i]) + c[i]) + d[i];
}

inline void clampLevels(double *level)
{
    for (std::size_t i = 0; i < blockSize; ++i)
        level[i] = limitedLevel(level[i]);
}

inline void wrapPhases(double *phase)
{
    for (std::size_t i = 0; i < blockSize; ++i) {
        const double wrapped = phase[i] - 360 * std::ceil((phase[i] - 180) / 360);
        // Rounding may leave a sum of many turns just outside.
        phase[i] = wrapped > 180 ? wrapped - 360 : wrapped <= -180 ? wrapped + 360 : wrapped;
    }
}

} // namespace tamble::common::response::loops
