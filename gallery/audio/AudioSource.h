#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <span>

/// An endless signal of one or more channels: whatever ends begins again.
class AudioSource
{
public:
    /// The most channels and the highest rate that a source may have, so that a block stays of a sane size.
    static constexpr int maximumChannels = 256;
    static constexpr int maximumSampleRate = 768000;

    AudioSource() = default;
    AudioSource(const AudioSource &) = delete;
    AudioSource &operator=(const AudioSource &) = delete;
    virtual ~AudioSource() = default;

    /// What a user reads as the origin of the signal.
    virtual QString name() const = 0;
    /// One name per channel; their number is the number of channels, at least 1.
    virtual QStringList channelNames() const = 0;
    /// Frames per second, at least 1.
    virtual int sampleRate() const = 0;

    /// Fills `samples` with the next frames, interleaved; full scale is ±1. The size is a multiple of the number of
    /// channels. Float files may contain anything, not-a-number too.
    virtual void read(std::span<float> samples) = 0;
    /// Goes back to the first frame.
    virtual void rewind() = 0;
};

/// A source, or the reason why there is none.
struct OpenedAudio
{
    std::unique_ptr<AudioSource> source;
    QString error; ///< one sentence with the file's name; empty when there is a source
};
