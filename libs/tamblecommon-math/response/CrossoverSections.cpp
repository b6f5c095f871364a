#include "response/CrossoverSections.h"

#include "response/ParameterRules.h"
#include "response/PrewarpedCorner.h"

#include <array>
#include <numbers>
#include <span>

namespace tamble::common::response {

namespace {

// A low-pass section in units of the crossover's corner: 1 / (1 + s / (w q) + (s / w)^2), or with q = 0, 1 / (1 + s /
// w).
struct LowPassSection
{
    double w = 0;
    double q = 0;
};

using LowPass = std::array<LowPassSection, 2>;

constexpr double firstOrder = 0;

// By type number. The Bessel low passes are scaled to -3.01 dB at the corner, so that all families have a comparable
// one; the form with unit delay would move the corner with the order.
constexpr LowPass lowPasses[] = {
    {},
    {{{1, firstOrder}}},
    {{{1, 0.5}}},
    {{{1, 0.6}}},
    {{{1, 0.7}}},
    {{{1, 0.8}}},
    {{{1, 1.0}}},
    {{{1, 1.2}}},
    {{{1, 1.5}}},
    {{{1, 2.0}}},
    {{{1.27201964951406896, 0.577350269189625765}}},                                              // Bessel 12
    {{{1, std::numbers::sqrt2 / 2}}},                                                             // Butterworth 12
    {{{1, 0.5}}},                                                                                 // Linkwitz-Riley 12
    {{{1.32267579991044477, firstOrder}, {1.44761713314698732, 0.691046625825071300}}},           // Bessel 18
    {{{1, firstOrder}, {1, 1}}},                                                                  // Butterworth 18
    {{{1.43017155999399047, 0.521934581668980155}, {1.60335751621697308, 0.805538281841666552}}}, // Bessel 24
    {{{1, 0.541196100146196984}, {1, 1.30656296487637653}}},                                      // Butterworth 24
    {{{1, std::numbers::sqrt2 / 2}, {1, std::numbers::sqrt2 / 2}}},                               // Linkwitz-Riley 24
};

Section lowPass(const LowPassSection &p)
{
    if (p.q == firstOrder)
        return {1, 0, 0, 1, 1 / p.w, 0};
    return {1, 0, 0, 1, 1 / (p.w * p.q), 1 / (p.w * p.w)};
}

// The low pass with s replaced by 1 / s, as in analogue practice.
Section highPass(const LowPassSection &p)
{
    if (p.q == firstOrder)
        return {0, 1, 0, 1 / p.w, 1, 0};
    return {0, 0, 1, 1 / (p.w * p.w), 1 / (p.w * p.q), 1};
}

} // namespace

SectionChain crossoverSections(const XOverFilter &filter, double sampleRate)
{
    SectionChain chain;
    if (filter.bypass || filter.type < 0 || filter.type >= static_cast<int>(std::size(lowPasses)))
        return chain;

    const double inverseCorner = inversePrewarpedCorner(usableCorner(filter.freq, sampleRate), sampleRate);
    for (const LowPassSection &p : lowPasses[filter.type]) {
        if (p.w == 0)
            break;
        Section section = CrossoverSide(filter.category) == CrossoverSide::HighPass ? highPass(p) : lowPass(p);
        section.inverseCorner = inverseCorner;
        chain.append(section);
    }
    return chain;
}

} // namespace tamble::common::response
