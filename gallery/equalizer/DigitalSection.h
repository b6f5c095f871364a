#pragma once

#include "response/Section.h"

#include <array>

/// Coefficients [b0, b1, b2, a1, a2], with a0 = 1, of a filter section in the time domain, which has the response that
/// the section is drawn with. A section of first order has b2 = a2 = 0.
std::array<double, 5> digitalSection(const tamble::common::response::Section &section);
