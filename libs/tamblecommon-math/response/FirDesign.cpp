#include "response/FirDesign.h"

#include "response/ParameterRules.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamble::common::response {

namespace {

using std::numbers::pi;

// Kaiser's beta for 60, 80 and 100 dB of stop-band attenuation.
double windowShape(int slope)
{
    switch (slope) {
    case 1:
        return 7.85726;
    case 2:
        return 10.06126;
    default:
        return 5.65326;
    }
}

} // namespace

int usableTaps(const FIRFilter &filter)
{
    return std::clamp(filter.order, 0, mostTaps);
}

bool isDesign(const FIRFilter &filter)
{
    return filter.generateCoefficients && firShape(filter.type).has_value();
}

std::optional<FirDesign> firDesign(const FIRFilter &filter, double sampleRate)
{
    const std::optional<FirShape> shape = firShape(filter.type);
    if (!shape || !isDesign(filter) || usableTaps(filter) < 3)
        return std::nullopt;

    FirDesign design;
    design.minimumPhase = shape->minimumPhase;
    design.taps = usableTaps(filter);
    design.windowShape = windowShape(filter.slope);
    const double highPass = 2 * (usableCorner(filter.freqHP, sampleRate) / sampleRate);
    const double lowPass = 2 * (usableCorner(filter.freqLP, sampleRate) / sampleRate);
    switch (shape->band) {
    case FirBand::LowPass:
        design.hi = lowPass;
        break;
    case FirBand::HighPass:
        design.lo = highPass;
        design.reference = 1;
        break;
    case FirBand::BandPass:
        design.lo = std::min(highPass, lowPass);
        design.hi = std::max(highPass, lowPass);
        design.reference = (design.lo + design.hi) / 2;
        if (design.hi - design.lo < 2e-6) {
            design.lo = design.reference - 1e-6;
            design.hi = design.reference + 1e-6;
        }
        break;
    }
    return design;
}

void computeHalf(const FirDesign &design, std::vector<double> &half)
{
    const int middle = (design.taps - 1) / 2;
    half.resize(static_cast<std::size_t>(middle) + 1);
    const double scale = 1 / std::cyl_bessel_i(0.0, design.windowShape);
    // The product of sine and cosine does not cancel for narrow bands, as a difference of two sines would.
    half[0] = design.hi - design.lo;
    double gain = half[0];
    for (std::size_t i = 1; i < half.size(); ++i) {
        const double m = static_cast<double>(i);
        const double ideal = 2 / (pi * m) * std::sin(pi * (design.hi - design.lo) * m / 2) *
                             std::cos(pi * (design.hi + design.lo) * m / 2);
        const double x = m / middle;
        half[i] = ideal * std::cyl_bessel_i(0.0, design.windowShape * std::sqrt((1 - x) * (1 + x))) * scale;
        gain += 2 * half[i] * std::cos(pi * design.reference * m);
    }
    for (double &tap : half)
        tap /= gain;
}

} // namespace tamble::common::response
