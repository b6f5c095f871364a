#include "BandStems.h"

#include "Biquad.h"

#include <cmath>
#include <numbers>
#include <random>

namespace {

constexpr double tau = 2.0 * std::numbers::pi;
constexpr double beatSeconds = 0.5;
constexpr double barSeconds = 4.0 * beatSeconds;
constexpr int bars = 4;

/// A minor, F major, C major, G major.
struct Harmony
{
    double bassHz;
    std::array<double, 3> chordHz;
};
constexpr std::array<Harmony, bars> harmonies{{
    {55.00, {220.00, 261.63, 329.63}},
    {43.65, {220.00, 261.63, 349.23}},
    {65.41, {196.00, 261.63, 329.63}},
    {49.00, {196.00, 246.94, 293.66}},
}};

/// Rises within `attack` seconds, then falls with the time constant `decay`.
double pluck(double time, double attack, double decay)
{
    return time < attack ? time / attack : std::exp(-(time - attack) / decay);
}

/// The pitch falls from 150 to 48 Hz, which is what makes it a drum.
double kick(double time)
{
    constexpr double low = 48.0;
    constexpr double drop = 102.0;
    constexpr double speed = 30.0;
    const double beat = std::fmod(time, beatSeconds);
    const double phase = low * beat + drop / speed * (1.0 - std::exp(-speed * beat));
    return std::sin(tau * phase) * pluck(beat, 0.002, 0.11);
}

double bass(double time, const Harmony &harmony)
{
    const double eighth = std::fmod(time, beatSeconds / 2.0);
    const double phase = tau * harmony.bassHz * std::fmod(time, barSeconds);
    const double tone = std::sin(phase) + 0.5 * std::sin(2.0 * phase) + 0.3 * std::sin(3.0 * phase);
    return 0.7 * tone * pluck(eighth, 0.006, 0.16);
}

/// Noise between −1 and 1 whose low end is taken away; the off-beats are open and louder.
class Hats
{
public:
    double next(double time)
    {
        const double noise = 2.0 * double(m_random() - std::minstd_rand::min()) / double(std::minstd_rand::max()) - 1.0;
        const double bright = 0.5 * (noise - m_previous);
        m_previous = noise;
        const double step = std::fmod(time, beatSeconds / 2.0);
        const bool open = std::fmod(time, beatSeconds) >= beatSeconds / 2.0;
        return bright * pluck(step, 0.001, open ? 0.07 : 0.02) * (open ? 1.0 : 0.5);
    }

private:
    std::minstd_rand m_random{1};
    double m_previous = 0.0;
};

double chord(double time, const Harmony &harmony)
{
    const double bar = std::fmod(time, barSeconds);
    double sum = 0.0;
    for (const double frequency : harmony.chordHz)
        sum += std::sin(tau * frequency * bar) + 0.3 * std::sin(2.0 * tau * frequency * bar);
    // Swells over the bar and is gone at its end, so that chords never jump.
    return 0.3 * sum * std::sin(std::numbers::pi * bar / barSeconds);
}

BiquadCoefficients bandPass(double frequency, double quality)
{
    const double angle = tau * frequency / stemSampleRate;
    const double alpha = std::sin(angle) / (2.0 * quality);
    return {alpha / (1.0 + alpha), 0.0, -alpha / (1.0 + alpha), -2.0 * std::cos(angle) / (1.0 + alpha),
            (1.0 - alpha) / (1.0 + alpha)};
}

/// A saw-tooth through the resonances of a mouth: a vowel per beat, every fourth beat for breath, a bar of rest.
class Voice
{
public:
    double next(double time)
    {
        const auto beat = std::size_t(time / beatSeconds);
        if (beat != m_beat)
            startVowel(beat);
        const double pitch = 140.0 + 30.0 * std::sin(tau * time / barSeconds) + 3.0 * std::sin(tau * 5.5 * time);
        m_phase = std::fmod(m_phase + pitch / stemSampleRate, 1.0);
        const double saw = 2.0 * m_phase - 1.0;
        const double sum =
            m_formants[0].process(saw) + 0.6 * m_formants[1].process(saw) + 0.3 * m_formants[2].process(saw);
        const bool rests = time >= (bars - 1) * barSeconds || beat % 4 == 3;
        return rests ? 0.0 : 2.2 * sum * std::sin(std::numbers::pi * std::fmod(time, beatSeconds) / beatSeconds);
    }

private:
    void startVowel(std::size_t beat)
    {
        constexpr std::array<std::array<double, 3>, 4> formantsHz{{
            {730.0, 1090.0, 2440.0}, // a
            {530.0, 1840.0, 2480.0}, // e
            {270.0, 2290.0, 3010.0}, // i
            {570.0, 840.0, 2410.0},  // o
        }};
        const auto &formants = formantsHz[beat * 3 % formantsHz.size()];
        for (std::size_t i = 0; i < m_formants.size(); ++i)
            m_formants[i].setCoefficients(bandPass(formants[i], 8.0));
        m_beat = beat;
    }

    std::array<Biquad, 3> m_formants;
    std::size_t m_beat = std::size_t(-1);
    double m_phase = 0.0;
};

} // namespace

std::vector<StemFrame> renderBandStems()
{
    std::vector<StemFrame> frames(std::size_t(bars * barSeconds * stemSampleRate));
    Hats hats;
    Voice voice;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const double time = double(i) / stemSampleRate;
        const Harmony &harmony = harmonies[std::size_t(time / barSeconds)];
        const double pad = chord(time, harmony);
        const double pan = std::sin(tau * time / (2.0 * barSeconds));
        frames[i] = {float(kick(time)),
                     float(bass(time, harmony)),
                     float(hats.next(time)),
                     float(pad * (0.75 + 0.25 * pan)),
                     float(pad * (0.75 - 0.25 * pan)),
                     float(voice.next(time))};
    }
    return frames;
}
