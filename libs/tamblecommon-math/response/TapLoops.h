#pragma once

#include "response/ResponseKernels.h"

// The loops behind ResponseKernels for taps; they keep to what ResponseKernels.cpp asks for.
namespace tamble::common::response::loops {

inline constexpr std::size_t tapPairs = tapGroup / 2;

// Points whose taps are summed at a time: their tables stay in the first-level cache beside the taps.
inline constexpr std::size_t tapPoints = 32;

struct alignas(64) HalfAngles
{
    double cosine[tapPairs][tapPoints]; // cos((m + 1/2) w)
    double sine[tapPairs][tapPoints];
};

[[gnu::always_inline]] inline void fillHalfAngles(const BlockAngles &angles, std::size_t first, HalfAngles &half)
{
    alignas(64) double c[tapPoints];
    alignas(64) double s[tapPoints];
    for (std::size_t i = 0; i < tapPoints; ++i) {
        half.cosine[0][i] = angles.cosHalf[first + i];
        half.sine[0][i] = angles.sinHalf[first + i];
        c[i] = half.cosine[0][i] * half.cosine[0][i] - half.sine[0][i] * half.sine[0][i];
        s[i] = 2 * half.cosine[0][i] * half.sine[0][i];
    }
    for (std::size_t m = 1; m < tapPairs; ++m) {
        for (std::size_t i = 0; i < tapPoints; ++i) {
            half.cosine[m][i] = half.cosine[m - 1][i] * c[i] - half.sine[m - 1][i] * s[i];
            half.sine[m][i] = half.sine[m - 1][i] * c[i] + half.cosine[m - 1][i] * s[i];
        }
    }
}

// Sum of a group's values times one table, over the pairs.
inline double dot(const double *__restrict values, const double (&__restrict table)[tapPairs][tapPoints], std::size_t i)
{
    return values[0] * table[0][i] + values[1] * table[1][i] + values[2] * table[2][i] + values[3] * table[3][i] +
           values[4] * table[4][i] + values[5] * table[5][i] + values[6] * table[6][i] + values[7] * table[7][i];
}

[[gnu::always_inline]] inline void taps(const double *__restrict groupValues, std::size_t groups,
                                        const BlockAngles &angles, BlockResponse &__restrict response)
{
    HalfAngles half;
    alignas(64) double re[tapPoints];
    alignas(64) double im[tapPoints];
    for (std::size_t first = 0; first < blockSize; first += tapPoints) {
        fillHalfAngles(angles, first, half);
        const double *__restrict c = angles.cosSixteen + first;
        const double *__restrict s = angles.sinSixteen + first;
        for (std::size_t i = 0; i < tapPoints; ++i)
            re[i] = im[i] = 0;
        for (std::size_t group = groups; group-- > 0;) {
            const double *__restrict values = groupValues + group * tapGroup;
            for (std::size_t i = 0; i < tapPoints; ++i) {
                const double turned = re[i] * c[i] + im[i] * s[i];
                im[i] = im[i] * c[i] - re[i] * s[i] - dot(values + tapPairs, half.sine, i);
                re[i] = turned + dot(values, half.cosine, i);
            }
        }
        // From the middle of the first group back to its first tap.
        for (std::size_t i = 0; i < tapPoints; ++i) {
            const double c7 = half.cosine[tapPairs - 1][i];
            const double s7 = half.sine[tapPairs - 1][i];
            response.re[first + i] = re[i] * c7 + im[i] * s7;
            response.im[first + i] = im[i] * c7 - re[i] * s7;
            response.numerator[first + i] = re[i] * re[i] + im[i] * im[i];
            response.denominator[first + i] = 1;
        }
    }
}

inline void symmetricTaps(const double *groupValues, std::size_t groups, const BlockAngles &angles,
                          BlockResponse &response)
{
    taps(groupValues, groups, angles, response);
    for (std::size_t i = 0; i < blockSize; ++i) {
        response.im[i] = 0;
        response.numerator[i] = response.re[i] * response.re[i];
    }
}

} // namespace tamble::common::response::loops
