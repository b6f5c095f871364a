#pragma once

#include "AudioSource.h"

#include <atomic>

/// Two channels of constant level, the second half as loud, at 48 kHz; counts the blocks that are read.
class CountingSource : public AudioSource
{
public:
    explicit CountingSource(std::atomic<int> &reads)
        : m_reads(reads)
    {}

    QString name() const override { return QStringLiteral("counting"); }
    QStringList channelNames() const override { return {QStringLiteral("1"), QStringLiteral("2")}; }
    int sampleRate() const override { return 48000; }
    void read(std::span<float> samples) override
    {
        for (std::size_t i = 0; i < samples.size(); ++i)
            samples[i] = i % 2 == 0 ? 0.5F : 0.25F;
        ++m_reads;
    }
    void rewind() override {}

private:
    std::atomic<int> &m_reads;
};
