#include "response/EqSections.h"

#include "response/ParameterRules.h"
#include "response/PrewarpedCorner.h"

#include <cmath>
#include <numbers>
#include <utility>

// Prototypes after Bristow-Johnson, Cookbook formulae for audio EQ biquad filter coefficients (W3C note 2021), except
// where stated.

namespace tamble::common::response {

namespace {

// The shelf that is as steep as possible without overshoot.
constexpr double steepestQuality = std::numbers::sqrt2 / 2;

// a is the square root of the linear gain throughout.

Section peaking(double a, double q)
{
    return {1, a / q, 1, 1, 1 / (a * q), 1};
}

Section lowShelf(double a)
{
    return {a, 1, 0, 1 / a, 1, 0};
}

Section highShelf(double a)
{
    return {1, a, 0, 1, 1 / a, 0};
}

Section lowShelf(double a, double q)
{
    const double ra = std::sqrt(a);
    return {a * a, a * ra / q, a, 1, ra / q, a};
}

Section highShelf(double a, double q)
{
    const double ra = std::sqrt(a);
    return {a, a * ra / q, a * a, a, ra / q, 1};
}

double amplitude(double gain)
{
    return std::pow(10, gain / 40);
}

Section prototype(const EqFilter &filter)
{
    const double q = usableQuality(filter.quality);
    const double a = amplitude(usableGain(filter.gain));
    const bool steep = FilterSlope(filter.slope) == FilterSlope::TwelveDb;

    switch (EqType(filter.type)) {
    case EqType::Peaking:
        return peaking(a, q);
    case EqType::ProportionalQ: // Zeros of a boost and poles of a cut keep Q, the others sharpen with the gain.
        return peaking(a, q * std::max(a, 1 / a));
    case EqType::ConstantQ: // One resonator for every gain: poles keep Q.
        return peaking(a, q / a);
    case EqType::LowShelf:
        return steep ? lowShelf(a, steepestQuality) : lowShelf(a);
    case EqType::HighShelf:
        return steep ? highShelf(a, steepestQuality) : highShelf(a);
    case EqType::LowShelfQ:
        return lowShelf(a, q);
    case EqType::HighShelfQ:
        return highShelf(a, q);
    case EqType::HighPass:
        return steep ? Section{0, 0, 1, 1, 1 / q, 1} : Section{0, 1, 0, 1, 1, 0};
    case EqType::LowPass:
        return steep ? Section{1, 0, 0, 1, 1 / q, 1} : Section{1, 0, 0, 1, 1, 0};
    case EqType::AllPass:
        return FilterSlope(filter.slope) == FilterSlope::SixDb ? Section{1, -1, 0, 1, 1, 0}
                                                               : Section{1, -1 / q, 1, 1, 1 / q, 1};
    case EqType::BandPass:
        return {0, 1 / q, 0, 1, 1 / q, 1};
    case EqType::Notch:
        return {1, 0, 1, 1, 1 / q, 1};
    default:
        return {};
    }
}

} // namespace

SectionChain eqSections(const EqFilter &filter, double sampleRate)
{
    SectionChain chain;
    if (filter.bypass)
        return chain;
    Section section = prototype(filter);
    section.inverseCorner = inversePrewarpedCorner(usableCorner(filter.freq, sampleRate), sampleRate);
    chain.append(section);
    chain.allPass = EqType(filter.type) == EqType::AllPass;
    return chain;
}

SectionChain asymmetricSections(const AsymmetricEqFilter &filter, double sampleRate)
{
    SectionChain chain;
    if (filter.bypass)
        return chain;

    struct Corner
    {
        double frequency;
        double quality;
    };
    Corner lower{usableCorner(filter.freq, sampleRate), usableQuality(filter.quality)};
    Corner upper{usableCorner(filter.freq2, sampleRate), usableQuality(filter.quality2)};
    if (upper.frequency < lower.frequency)
        std::swap(lower, upper);

    const double gain = usableGain(filter.gain);
    Section rise = highShelf(amplitude(gain), lower.quality);
    rise.inverseCorner = inversePrewarpedCorner(lower.frequency, sampleRate);
    Section fall = highShelf(amplitude(-gain), upper.quality);
    fall.inverseCorner = inversePrewarpedCorner(upper.frequency, sampleRate);
    chain.append(rise);
    chain.append(fall);
    return chain;
}

} // namespace tamble::common::response
