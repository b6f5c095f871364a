#pragma once

#include "AudioSource.h"

/// The signal that plays when no file is given: eight seconds of a small band with a voice that pauses, on twelve
/// channels from quiet zones to mixes that touch full scale. Every instance plays exactly the same samples.
std::unique_ptr<AudioSource> createBuiltInSignal();
