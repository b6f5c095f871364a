#include "AudioProcessor.h"

#include "Decibels.h"

#include <algorithm>
#include <cmath>

namespace {

std::size_t framesPerBlock(int sampleRate)
{
    const std::chrono::duration<double> length = AudioProcessor::nominalBlockLength;
    return std::size_t(std::max(std::lround(sampleRate * length.count()), 1L));
}

} // namespace

AudioProcessor::AudioProcessor(std::unique_ptr<AudioSource> source)
    : m_source(std::move(source))
    , m_channels(int(m_source->channelNames().size()))
    , m_block(framesPerBlock(m_source->sampleRate()) * std::size_t(m_channels))
    , m_oneChannel(framesPerBlock(m_source->sampleRate()))
{
    rewind();
}

std::chrono::duration<double> AudioProcessor::blockLength() const
{
    return std::chrono::duration<double>(double(m_oneChannel.size()) / m_source->sampleRate());
}

void AudioProcessor::setDynamics(int tap, int channel, const DynamicsSettings &settings)
{
    DynamicsTap &dynamics =
        m_dynamics.try_emplace(tap, DynamicsTap{0, DynamicsChain(m_source->sampleRate())}).first->second;
    dynamics.channel = wrapped(channel);
    dynamics.chain.setSettings(settings);
}

void AudioProcessor::setSpectrum(int tap, int channel, const SpectrumSettings &settings)
{
    SpectrumTap &spectrum =
        m_spectra.try_emplace(tap, SpectrumTap{0, {}, Spectrum(m_source->sampleRate())}).first->second;
    spectrum.channel = wrapped(channel);
    spectrum.filters.setSections(settings.sections);
    spectrum.spectrum.setAveragingMs(settings.averagingMs);
}

void AudioProcessor::removeTap(int tap)
{
    m_dynamics.erase(tap);
    m_snapshot.dynamics.erase(tap);
    m_spectra.erase(tap);
    m_snapshot.spectra.erase(tap);
}

void AudioProcessor::processBlock()
{
    m_source->read(m_block);
    ++m_snapshot.block;
    measureLevels(m_block, m_snapshot.levels);
    for (auto &[number, tap] : m_dynamics)
        m_snapshot.dynamics[number] = tap.chain.process(m_block, m_channels, tap.channel);
    for (auto &[number, tap] : m_spectra) {
        process(tap);
        m_snapshot.spectra[number] = tap.spectrum.levels();
    }
}

void AudioProcessor::process(SpectrumTap &tap)
{
    for (std::size_t frame = 0; frame < m_oneChannel.size(); ++frame)
        m_oneChannel[frame] = m_block[frame * std::size_t(m_channels) + std::size_t(tap.channel)];
    tap.filters.process(m_oneChannel);
    tap.spectrum.process(m_oneChannel);
}

void AudioProcessor::rewind()
{
    m_source->rewind();
    for (auto &[number, tap] : m_dynamics)
        tap.chain.reset();
    for (auto &[number, tap] : m_spectra) {
        tap.filters.reset();
        tap.spectrum.reset();
    }
    m_snapshot = {};
    m_snapshot.levels.assign(std::size_t(m_channels), {floorDb, floorDb});
}

int AudioProcessor::wrapped(int channel) const
{
    return std::max(channel, 0) % m_channels;
}
