#pragma once

#include "AudioSource.h"
#include "BlockLevels.h"
#include "DynamicsChain.h"
#include "FilterBank.h"
#include "Spectrum.h"

#include <chrono>
#include <map>
#include <vector>

/// What a spectrum looks at: the signal behind these filter sections, averaged over this time.
struct SpectrumSettings
{
    std::vector<BiquadCoefficients> sections;
    double averagingMs = 300.0;

    bool operator==(const SpectrumSettings &) const = default;
};

/// Everything that is shown of one block. Dynamics and spectra are found by the number of their tap.
struct AudioSnapshot
{
    long long block = 0; ///< number of the block since the beginning, from 1; 0 before the first
    std::vector<BlockLevel> levels;
    std::map<int, DynamicsReading> dynamics;
    std::map<int, std::vector<double>> spectra;
};

/// Reads a source block by block and computes what is shown of it: the levels of all channels, and what the taps ask
/// for. Knows no clock and no thread; the same calls give the same results.
class AudioProcessor
{
public:
    /// Length of a block, as near as whole frames allow; the meters on screen tick at the same rate.
    static constexpr std::chrono::milliseconds nominalBlockLength{50};

    /// Begins at the first frame of `source`, which must not be null.
    explicit AudioProcessor(std::unique_ptr<AudioSource> source);

    const AudioSource &source() const { return *m_source; }
    /// Length of a block in seconds.
    std::chrono::duration<double> blockLength() const;

    /// Puts a dynamics processor at `channel`, or changes the one that `tap` has there. Channels are counted from 0
    /// and around, so that a page for many channels has something to show of a file with few.
    void setDynamics(int tap, int channel, const DynamicsSettings &settings);
    /// The same for a spectrum.
    void setSpectrum(int tap, int channel, const SpectrumSettings &settings);
    /// Ends a tap of either kind.
    void removeTap(int tap);

    /// Computes the next block.
    void processBlock();
    /// Results of the last block.
    const AudioSnapshot &snapshot() const { return m_snapshot; }
    /// Back to the first frame; filters, detectors and averages forget what they heard.
    void rewind();

private:
    struct DynamicsTap
    {
        int channel = 0;
        DynamicsChain chain;
    };
    struct SpectrumTap
    {
        int channel = 0;
        FilterBank filters;
        Spectrum spectrum;
    };

    int wrapped(int channel) const;
    void process(SpectrumTap &tap);

    std::unique_ptr<AudioSource> m_source;
    int m_channels;
    std::vector<float> m_block;      ///< interleaved
    std::vector<float> m_oneChannel; ///< the channel of one spectrum
    std::map<int, DynamicsTap> m_dynamics;
    std::map<int, SpectrumTap> m_spectra;
    AudioSnapshot m_snapshot;
};
