#pragma once

#include "AudioSource.h"

/// Opens the sound file `fileName` (WAV, FLAC, Ogg and what else libsndfile reads) to play it in a loop.
///
/// The file is read as it is played, so its length does not matter. Any sample rate and number of channels will do
/// within the limits of AudioSource; a file without a single frame is refused.
OpenedAudio openSoundFile(const QString &fileName);
