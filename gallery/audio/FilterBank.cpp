#include "FilterBank.h"

#include <cmath>

void FilterBank::setSections(std::span<const BiquadCoefficients> sections)
{
    if (sections.size() != m_sections.size())
        m_sections.assign(sections.size(), Biquad());
    for (std::size_t i = 0; i < sections.size(); ++i)
        m_sections[i].setCoefficients(sections[i]);
}

void FilterBank::process(std::span<float> samples)
{
    for (float &sample : samples) {
        double value = std::isfinite(sample) ? double(sample) : 0.0;
        for (Biquad &section : m_sections)
            value = section.process(value);
        sample = float(value);
    }
}

void FilterBank::reset()
{
    for (Biquad &section : m_sections)
        section.reset();
}
