#pragma once

#include "RealTransform.h"

#include <vector>

/// The short-time spectrum of a signal in bands that are equally wide on a logarithmic frequency axis.
class Spectrum
{
public:
    /// Centres of the lowest and the highest band in Hz.
    static constexpr double lowestHz = 20.0;
    static constexpr double highestHz = 20000.0;

    /// Number of bands, which makes each about a sixth of an octave wide.
    static constexpr std::size_t bandCount = 61;

    /// Centre of band `index` in Hz.
    static double centreHz(std::size_t index);

    /// `sampleRate` is in Hz; the window lasts between 0.17 and 0.34 seconds.
    explicit Spectrum(double sampleRate);

    /// Time constant of the average over the past, in ms; 0 shows the present window alone.
    void setAveragingMs(double averagingMs) { m_averagingMs = averagingMs; }

    /// Takes in the next samples, all finite, and updates the average once.
    void process(std::span<const float> samples);

    /// Level of each band in dB: that of its strongest component, where a full-scale sine counts 0 (down to −1.4 when
    /// it lies between two bins of the transform). Bands above half the sample rate and silence give `floorDb`.
    std::vector<double> levels() const;

    /// Forgets the past of the signal.
    void reset();

private:
    double bandPower(std::size_t band) const;
    double powerAt(double bin) const;

    double m_sampleRate;
    double m_averagingMs = 300.0;
    RealTransform m_transform;
    std::vector<float> m_window;
    std::vector<float> m_past; ///< the last samples, as many as the window has, used as a ring
    std::size_t m_next = 0;    ///< where the next sample goes in m_past
    std::vector<float> m_windowed;
    std::vector<double> m_power; ///< averaged power of each bin, 1 for a full-scale sine
};
