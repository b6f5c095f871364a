#pragma once

#include <cmath>

/// The lowest level that is told apart from silence, in dB below full scale.
inline constexpr double FloorDb = -120.0;

/// Level in dB of an amplitude relative to full scale 1; `FloorDb` for silence and what lies below it.
inline double amplitudeToDb(double amplitude)
{
    return amplitude > 1e-6 ? 20.0 * std::log10(amplitude) : FloorDb;
}

/// Level in dB of a power relative to 1; `FloorDb` for silence and what lies below it.
inline double powerToDb(double power)
{
    return power > 1e-12 ? 10.0 * std::log10(power) : FloorDb;
}
