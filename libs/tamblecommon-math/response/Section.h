#pragma once

#include <array>

namespace tamble::common::response {

/// An analogue prototype (b0 + b1 s + b2 s^2) / (a0 + a1 s + a2 s^2), with s in units of its corner, and the corner.
///
/// The bilinear transform, prewarped at the corner f0, turns a point of the unit circle into
/// s = j tan(pi f / fs) / tan(pi f0 / fs). The digital response is therefore had exactly without digital coefficients,
/// whose rounding would cost a narrow band at 20 Hz up to 4e-5 dB.
struct Section
{
    double b0 = 1;
    double b1 = 0;
    double b2 = 0;
    double a0 = 1;
    double a1 = 0;
    double a2 = 0;
    double inverseCorner = 1; ///< 1 / tan(pi f0 / fs)

    bool operator==(const Section &) const = default;

    bool isUnity() const { return b0 == a0 && b1 == a1 && b2 == a2; }
};

/// Up to two sections in series, which is what the highest order of a record needs; none is a flat response.
struct SectionChain
{
    int count = 0;
    bool allPass = false; ///< The level is 0 dB by construction and is not computed.
    std::array<Section, 2> sections;

    bool operator==(const SectionChain &) const = default;

    void append(const Section &section)
    {
        if (!section.isUnity())
            sections[static_cast<std::size_t>(count++)] = section;
    }
};

} // namespace tamble::common::response
