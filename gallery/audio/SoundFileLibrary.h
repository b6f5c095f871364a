#pragma once

#include <sndfile.h>

/// What the gallery uses of libsndfile.
struct SoundFileLibrary
{
    decltype(&sf_open) open;
    decltype(&sf_close) close;
    decltype(&sf_seek) seek;
    decltype(&sf_readf_float) readFrames;
    decltype(&sf_strerror) errorText;
};

/// Loads libsndfile with the first file that is opened: few starts have one, and it brings eight libraries of codecs.
/// Null if it is not there.
const SoundFileLibrary *soundFileLibrary();
