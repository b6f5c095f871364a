#pragma once

namespace tamble::common::response {

/// Whether responses can be evaluated at all: finite and at least 1 Hz.
bool isUsableSampleRate(double sampleRate);

/// A corner or centre frequency in Hz within 0.01 .. 0.499 sampleRate; NaN counts as 20.
///
/// Clamped rather than switched off, so that a curve stays continuous while a handle is dragged across half the rate.
double usableCorner(double frequency, double sampleRate);

/// A Q within 0.05 .. 1000; NaN counts as 1.
double usableQuality(double quality);

/// A gain within -120 .. 120 dB; NaN counts as 0.
double usableGain(double gain);

} // namespace tamble::common::response
