#pragma once

#include <array>
#include <vector>

/// Kick, bass, hats, chords left, chords right, voice.
inline constexpr std::size_t stemCount = 6;
inline constexpr int stemSampleRate = 48000;

/// One sample of every instrument; each instrument stays within about ±1.
using StemFrame = std::array<float, stemCount>;

/// Four bars at 120 beats a minute that end where they begin: a kick on the beats, an eighth-note bass, hats of noise,
/// pad chords that swell and wander, and a sung phrase that pauses in the fourth bar. The same at every call.
std::vector<StemFrame> renderBandStems();
