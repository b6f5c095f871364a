#include "InstallerSetup.h"

#include "FieldTable.h"
#include "NetworkSources.h"

#include <array>

namespace {

constexpr std::array places{"Stage left", "Stage right", "Balcony", "Foyer", "Delay tower", "Control room"};

struct MixerInput
{
    const char *name;
    double gain; ///< dB
};
constexpr std::array<MixerInput, 16> band{{
    {"Kick", -4.0},
    {"Snare", -6.0},
    {"Hats", -12.0},
    {"Toms", -9.0},
    {"Overheads", -14.0},
    {"Bass", -5.0},
    {"Guitar L", -8.0},
    {"Guitar R", -8.0},
    {"Keys L", -10.0},
    {"Keys R", -10.0},
    {"Playback L", -7.0},
    {"Playback R", -7.0},
    {"Vocal", 0.0},
    {"Vocal 2", -3.0},
    {"Choir", -11.0},
    {"Talkback", gainOff},
}};

constexpr std::array matrixInputs{"Main L",     "Main R",     "Monitor 1", "Monitor 2", "Sub mix",  "Front fill",
                                  "Delay send", "Broadcast",  "Player 1",  "Player 2",  "Paging 1", "Paging 2",
                                  "Wireless 1", "Wireless 2", "Tie 1",     "Tie 2"};
constexpr std::array matrixOutputs{
    "Stage left", "Stage right", "Sub left", "Sub right",  "Front fill", "Balcony left", "Balcony right", "Delay tower",
    "Foyer",      "Lobby",       "Bar",      "Dressing 1", "Dressing 2", "Control",      "Record L",      "Record R"};

/// Which input plays where at first: an entry per output, −1 for none.
constexpr std::array<int, 16> firstRoutes{0, 1, 4, 4, 5, 0, 1, 6, 8, 8, 9, 2, 3, 7, 0, 1};

class Setup
{
public:
    explicit Setup(DeviceKind kind)
        : m_record(kind)
    {}

    void write(int field, const QVariant &value) { m_record.write(field, value); }
    void write(QStringView field, const QVariant &value) { write(fieldIndex(field, m_record.kind()), value); }
    void writeNetwork(int lastByte)
    {
        write(u"ipAddress", "192.168.10." + QString::number(lastByte));
        write(u"subnetMask", QStringLiteral("255.255.255.0"));
        write(u"gateway", QStringLiteral("192.168.10.1"));
    }
    const DeviceRecord &record() const { return m_record; }

private:
    DeviceRecord m_record;
};

/// What all amplifiers have in common, and where the rest of each channel goes.
struct TypicalAmplifier
{
    struct ChannelFields
    {
        int source;
        int delay;
        bool isLast; // of the inputs, or of the outputs
    };

    Setup setup{DeviceKind::Amplifier};
    QList<ChannelFields> channels;

    TypicalAmplifier();
};

TypicalAmplifier::TypicalAmplifier()
{
    const auto [inputs, outputs] = channelCount(DeviceKind::Amplifier);
    for (int i = 0; i < inputs + outputs; ++i) {
        const bool isInput = i < inputs;
        const int ofKind = isInput ? i + 1 : i - inputs + 1;
        const QString number = QString::number(ofKind);
        const QString channel = (isInput ? "input" : "output") + number;
        setup.write(channel + "Name", (isInput ? "In " : "Way ") + number);
        const bool isLast = ofKind == (isInput ? inputs : outputs);
        setup.write(channel + "Gain", isLast ? gainOff : -3.0 * i);
        channels.append({fieldIndex(channel + "Source"), fieldIndex(channel + "DelaySamples"), isLast});
    }
}

} // namespace

DeviceRecord installedAmplifier(int number)
{
    static const TypicalAmplifier typical;
    const int place = number % int(places.size());
    Setup amplifier = typical.setup;
    amplifier.write(u"name", "Amplifier " + QString::number(number + 1));
    amplifier.write(u"location", QString::fromLatin1(places[std::size_t(place)]));
    amplifier.writeNetwork(11 + number);
    amplifier.write(u"pin", QString::number(4711 + 13 * number));
    amplifier.write(u"temperature", number == 17 ? 41.5 : 31.5 + 0.5 * (number % 9));
    amplifier.write(u"notes", "Rack " + QString::number(place + 1) + "\nChecked by the night crew");
    const int channels = int(typical.channels.size());
    const int inputs = channelCount(DeviceKind::Amplifier).inputs;
    for (int i = 0; i < channels; ++i) {
        const TypicalAmplifier::ChannelFields &channel = typical.channels[i];
        const int source = (number * inputs + i) % int(networkSources().size());
        const bool isUnknown = number % 5 == 4 && channel.isLast;
        amplifier.write(channel.source, isUnknown ? 9000 + number : networkSources()[source].id);
        amplifier.write(channel.delay, 48 * place + 12 * i);
    }
    return amplifier.record();
}

DeviceRecord installedMixer(int number)
{
    Setup mixer(DeviceKind::Mixer);
    mixer.write(u"name", number == 0 ? QStringLiteral("FOH mixer") : QStringLiteral("Monitor mixer"));
    mixer.write(u"location", number == 0 ? QStringLiteral("Control room") : QStringLiteral("Stage left"));
    mixer.writeNetwork(41 + number);
    mixer.write(u"pin", QString::number(2601 + number));
    mixer.write(u"temperature", 34.0 + number);
    for (int i = 0; i < int(band.size()); ++i) {
        const QString channel = "input" + QString::number(i + 1);
        mixer.write(channel + "Name", QString::fromLatin1(band[std::size_t(i)].name));
        mixer.write(channel + "Source", networkSources()[i + 48 * number].id);
        mixer.write(channel + "Gain", band[std::size_t(i)].gain);
    }
    for (int i = 0; i < 2; ++i) {
        const QString channel = "output" + QString::number(i + 1);
        mixer.write(channel + "Name", i == 0 ? QStringLiteral("Main L") : QStringLiteral("Main R"));
        mixer.write(channel + "Gain", -2.0);
    }
    return mixer.record();
}

DeviceRecord installedMatrix()
{
    Setup matrix(DeviceKind::Matrix);
    matrix.write(u"name", QStringLiteral("Stage matrix"));
    matrix.write(u"location", QStringLiteral("Stage right"));
    matrix.writeNetwork(51);
    matrix.write(u"pin", QStringLiteral("1630"));
    matrix.write(u"temperature", 33.0);
    for (int i = 0; i < int(matrixInputs.size()); ++i)
        matrix.write("input" + QString::number(i + 1) + "Name", QString::fromLatin1(matrixInputs[std::size_t(i)]));
    for (int j = 0; j < int(matrixOutputs.size()); ++j) {
        matrix.write("output" + QString::number(j + 1) + "Name", QString::fromLatin1(matrixOutputs[std::size_t(j)]));
        matrix.write("route" + QString::number(firstRoutes[std::size_t(j)] + 1) + u'x' + QString::number(j + 1), true);
    }
    return matrix.record();
}
