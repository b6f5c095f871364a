#pragma once

#include "AudioSource.h"

#include <QtCore/QtPlugin>

/// What reads sound files. A plug-in, since the libraries of all formats take longer to load than the window that may
/// never open a file.
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
