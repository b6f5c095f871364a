#pragma once

#include <cmath>

/// The lowest level that is told apart from silence, in dB below full scale.
inline constexpr double floorDb = -120.0;

/// Level in dB of an amplitude relative to full scale 1; `floorDb` for silence and what lies below it.
inline double amplitudeToDb(double amplitude)
{
    return amplitude > 1e-6 ? 20.0 * std::log10(amplitude) : floorDb;
}

/// Level in dB of a power relative to 1; `floorDb` for silence and what lies below it.
inline double powerToDb(double power)
{
    return power > 1e-12 ? 10.0 * std::log10(power) : floorDb;
}
