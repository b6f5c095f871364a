#include "BuiltInSignal.h"

#include "BandStems.h"

#include <array>

namespace {

struct Channel
{
    const char *name;
    std::array<float, stemCount> gains; ///< of kick, bass, hats, chords left and right, voice
};

// Levels chosen by ear of a meter: quiet zones stay green, the mixes reach yellow on every beat and red on some.
constexpr std::array<Channel, 12> channels{{
    {"Kick", {0.80F, 0.0F, 0.0F, 0.0F, 0.0F, 0.0F}},
    {"Bass", {0.0F, 0.50F, 0.0F, 0.0F, 0.0F, 0.0F}},
    {"Hats", {0.0F, 0.0F, 0.40F, 0.0F, 0.0F, 0.0F}},
    {"Chords L", {0.0F, 0.0F, 0.0F, 0.35F, 0.0F, 0.0F}},
    {"Chords R", {0.0F, 0.0F, 0.0F, 0.0F, 0.35F, 0.0F}},
    {"Voice", {0.0F, 0.0F, 0.0F, 0.0F, 0.0F, 0.70F}},
    {"Mix L", {0.52F, 0.22F, 0.20F, 0.24F, 0.08F, 0.36F}},
    {"Mix R", {0.52F, 0.22F, 0.14F, 0.08F, 0.24F, 0.36F}},
    {"Hall", {0.25F, 0.12F, 0.05F, 0.08F, 0.08F, 0.16F}},
    {"Lobby", {0.05F, 0.04F, 0.02F, 0.03F, 0.03F, 0.05F}},
    {"Speech", {0.0F, 0.0F, 0.0F, 0.01F, 0.01F, 0.45F}},
    {"Subwoofer", {0.80F, 0.35F, 0.0F, 0.0F, 0.0F, 0.0F}},
}};

class BuiltInSignal : public AudioSource
{
public:
    QString name() const override { return QStringLiteral("Built-in signal"); }
    int sampleRate() const override { return stemSampleRate; }
    QStringList channelNames() const override;
    void read(std::span<float> samples) override;
    void rewind() override { m_frame = 0; }

private:
    std::vector<StemFrame> m_stems; ///< rendered when first heard: it takes as long as several frames on screen
    std::size_t m_frame = 0;
};

QStringList BuiltInSignal::channelNames() const
{
    QStringList names;
    for (const Channel &channel : channels)
        names.append(QString::fromLatin1(channel.name));
    return names;
}

void BuiltInSignal::read(std::span<float> samples)
{
    if (m_stems.empty())
        m_stems = renderBandStems();
    for (; !samples.empty(); samples = samples.subspan(channels.size())) {
        const StemFrame &stems = m_stems[m_frame];
        for (std::size_t channel = 0; channel < channels.size(); ++channel) {
            float sum = 0.0F;
            for (std::size_t stem = 0; stem < stemCount; ++stem)
                sum += channels[channel].gains[stem] * stems[stem];
            samples[channel] = sum;
        }
        m_frame = (m_frame + 1) % m_stems.size();
    }
}

} // namespace

std::unique_ptr<AudioSource> createBuiltInSignal()
{
    return std::make_unique<BuiltInSignal>();
}
