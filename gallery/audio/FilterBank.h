#pragma once

#include "Biquad.h"

#include <span>
#include <vector>

/// A cascade of second-order sections: the output of each is the input of the next.
class FilterBank
{
public:
    /// Exchanges the sections. While their number stays the same they keep their memory.
    void setSections(std::span<const BiquadCoefficients> sections);

    /// Filters `samples` in place; samples that are not finite count as 0.
    void process(std::span<float> samples);

    /// Forgets the past of the signal.
    void reset();

private:
    std::vector<Biquad> m_sections;
};
