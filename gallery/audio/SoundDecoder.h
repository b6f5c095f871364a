#pragma once

#include "AudioSource.h"

#include <QtCore/QtPlugin>

/// What reads sound files. A plug-in, so that libsndfile and the nine libraries below it are loaded with the first
/// sound file, not at each start.
class SoundDecoder
{
public:
    SoundDecoder() = default;
    SoundDecoder(const SoundDecoder &) = delete;
    SoundDecoder &operator=(const SoundDecoder &) = delete;
    virtual ~SoundDecoder() = default;

    /// Opens an existing file; the error is the reason alone.
    virtual OpenedAudio open(const QString &fileName) const = 0;
};

Q_DECLARE_INTERFACE(SoundDecoder, "Tamble.Gallery.SoundDecoder/1.0")
