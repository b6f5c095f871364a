#include "DigitalSection.h"

std::array<double, 5> digitalSection(const tamble::common::response::Section &section)
{
    const double k = 1.0 / section.inverseCorner;
    // Taken as one of second order it would get a pole and a zero on each other at half the sample rate.
    if (section.b2 == 0.0 && section.a2 == 0.0) {
        const double a0 = section.a0 * k + section.a1;
        return {(section.b0 * k + section.b1) / a0, (section.b0 * k - section.b1) / a0, 0.0,
                (section.a0 * k - section.a1) / a0, 0.0};
    }
    const double a0 = (section.a0 * k + section.a1) * k + section.a2;
    return {((section.b0 * k + section.b1) * k + section.b2) / a0, 2.0 * (section.b0 * k * k - section.b2) / a0,
            ((section.b0 * k - section.b1) * k + section.b2) / a0, 2.0 * (section.a0 * k * k - section.a2) / a0,
            ((section.a0 * k - section.a1) * k + section.a2) / a0};
}
