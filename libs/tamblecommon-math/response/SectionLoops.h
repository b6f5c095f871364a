#pragma once

#include "response/ResponseKernels.h"

#include <algorithm>

// The loops behind ResponseKernels for sections; they keep to what ResponseKernels.cpp asks for.
namespace tamble::common::response::loops {

// Far beyond any prewarped frequency in use; keeps the fourth power of two sections finite.
inline constexpr double highestFrequency = 1e30;

// |H|^2 stays a sum of squares: expanded into a polynomial it would lose the digits next to a zero.
inline void oneSection(const Section &section, const double *__restrict tangents, BlockResponse &__restrict response)
{
    const Section s = section;
    for (std::size_t i = 0; i < blockSize; ++i) {
        const double o = std::min(highestFrequency, tangents[i] * s.inverseCorner);
        const double x = o * o;
        const double nr = s.b0 - s.b2 * x;
        const double ni = s.b1 * o;
        const double dr = s.a0 - s.a2 * x;
        const double di = s.a1 * o;
        response.numerator[i] = nr * nr + ni * ni;
        response.denominator[i] = dr * dr + di * di;
        response.re[i] = nr * dr + ni * di;
        response.im[i] = ni * dr - nr * di;
    }
}

inline void twoSections(const Section &first, const Section &second, const double *__restrict tangents,
                        BlockResponse &__restrict response)
{
    BlockResponse other;
    oneSection(first, tangents, response);
    oneSection(second, tangents, other);
    for (std::size_t i = 0; i < blockSize; ++i) {
        const double re = response.re[i] * other.re[i] - response.im[i] * other.im[i];
        response.im[i] = response.re[i] * other.im[i] + response.im[i] * other.re[i];
        response.re[i] = re;
        response.numerator[i] *= other.numerator[i];
        response.denominator[i] *= other.denominator[i];
    }
}

// At this square of a frequency every response is at its end, and the powers of four sections can be multiplied.
inline constexpr double highestSquare = 1e24;

// A section with the squares that its power needs.
struct PowerSection
{
    double b0;
    double b1Squared;
    double b2;
    double a0;
    double a1Squared;
    double a2;
    double inverseCornerSquared;
};

inline PowerSection powerSection(const Section &s)
{
    return {s.b0, s.b1 * s.b1, s.b2, s.a0, s.a1 * s.a1, s.a2, s.inverseCorner * s.inverseCorner};
}

inline void multiplyPowers(const Section &first, const Section &second, const double *__restrict tangents,
                           BlockResponse &__restrict response)
{
    const PowerSection sections[2] = {powerSection(first), powerSection(second)};
    for (std::size_t i = 0; i < blockSize; ++i) {
        const double square = tangents[i] * tangents[i];
        double numerator = response.numerator[i];
        double denominator = response.denominator[i];
        for (const PowerSection &s : sections) {
            const double x = std::min(highestSquare, square * s.inverseCornerSquared);
            const double nr = s.b0 - s.b2 * x;
            const double dr = s.a0 - s.a2 * x;
            numerator *= nr * nr + s.b1Squared * x;
            denominator *= dr * dr + s.a1Squared * x;
        }
        response.numerator[i] = numerator;
        response.denominator[i] = denominator;
    }
}

} // namespace tamble::common::response::loops
