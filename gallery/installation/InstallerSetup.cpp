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

    void write(const QString &field, const QVariant &value)
    {
        m_record.write(fieldIndex(field, m_record.kind()), value);
    }
    void writeNetwork(int lastByte)
    {
        write(QStringLiteral("ipAddress"), QStringLiteral("192.168.10.%1").arg(lastByte));
        write(QStringLiteral("subnetMask"), QStringLiteral("255.255.255.0"));
        write(QStringLiteral("gateway"), QStringLiteral("192.168.10.1"));
    }
    const DeviceRecord &record() const { return m_record; }

private:
    DeviceRecord m_record;
};

} // namespace

DeviceRecord installedAmplifier(int number)
{
    const int place = number % int(places.size());
    Setup amplifier(DeviceKind::Amplifier);
    amplifier.write(QStringLiteral("name"), QStringLiteral("Amplifier %1").arg(number + 1));
    amplifier.write(QStringLiteral("location"), QString::fromLatin1(places[std::size_t(place)]));
    amplifier.writeNetwork(11 + number);
    amplifier.write(QStringLiteral("pin"), QStringLiteral("%1").arg(4711 + 13 * number));
    amplifier.write(QStringLiteral("temperature"), number == 17 ? 41.5 : 31.5 + 0.5 * (number % 9));
    amplifier.write(QStringLiteral("notes"), QStringLiteral("Rack %1\nChecked by the night crew").arg(place + 1));
    const auto [inputs, outputs] = channelCount(DeviceKind::Amplifier);
    for (int i = 0; i < inputs + outputs; ++i) {
        const bool isInput = i < inputs;
        const int ofKind = isInput ? i + 1 : i - inputs + 1;
        const QString channel = (isInput ? QStringLiteral("input%1") : QStringLiteral("output%1")).arg(ofKind);
        const int source = (number * inputs + i) % int(networkSources().size());
        amplifier.write(channel + QStringLiteral("Name"),
                        (isInput ? QStringLiteral("In %1") : QStringLiteral("Way %1")).arg(ofKind));
        amplifier.write(channel + QStringLiteral("Source"),
                        number % 5 == 4 && ofKind == 4 ? 9000 + number : networkSources()[source].id);
        amplifier.write(channel + QStringLiteral("Gain"), ofKind == 4 ? gainOff : -3.0 * i);
        amplifier.write(channel + QStringLiteral("DelaySamples"), 48 * place + 12 * i);
    }
    return amplifier.record();
}

DeviceRecord installedMixer(int number)
{
    Setup mixer(DeviceKind::Mixer);
    mixer.write(QStringLiteral("name"), number == 0 ? QStringLiteral("FOH mixer") : QStringLiteral("Monitor mixer"));
    mixer.write(QStringLiteral("location"),
                number == 0 ? QStringLiteral("Control room") : QStringLiteral("Stage left"));
    mixer.writeNetwork(41 + number);
    mixer.write(QStringLiteral("pin"), QStringLiteral("%1").arg(2601 + number));
    mixer.write(QStringLiteral("temperature"), 34.0 + number);
    for (int i = 0; i < int(band.size()); ++i) {
        const QString channel = QStringLiteral("input%1").arg(i + 1);
        mixer.write(channel + QStringLiteral("Name"), QString::fromLatin1(band[std::size_t(i)].name));
        mixer.write(channel + QStringLiteral("Source"), networkSources()[i + 48 * number].id);
        mixer.write(channel + QStringLiteral("Gain"), band[std::size_t(i)].gain);
    }
    for (int i = 0; i < 2; ++i) {
        const QString channel = QStringLiteral("output%1").arg(i + 1);
        mixer.write(channel + QStringLiteral("Name"), i == 0 ? QStringLiteral("Main L") : QStringLiteral("Main R"));
        mixer.write(channel + QStringLiteral("Gain"), -2.0);
    }
    return mixer.record();
}

DeviceRecord installedMatrix()
{
    Setup matrix(DeviceKind::Matrix);
    matrix.write(QStringLiteral("name"), QStringLiteral("Stage matrix"));
    matrix.write(QStringLiteral("location"), QStringLiteral("Stage right"));
    matrix.writeNetwork(51);
    matrix.write(QStringLiteral("pin"), QStringLiteral("1630"));
    matrix.write(QStringLiteral("temperature"), 33.0);
    for (int i = 0; i < int(matrixInputs.size()); ++i)
        matrix.write(QStringLiteral("input%1Name").arg(i + 1), QString::fromLatin1(matrixInputs[std::size_t(i)]));
    for (int j = 0; j < int(matrixOutputs.size()); ++j) {
        matrix.write(QStringLiteral("output%1Name").arg(j + 1), QString::fromLatin1(matrixOutputs[std::size_t(j)]));
        matrix.write(QStringLiteral("route%1x%2").arg(firstRoutes[std::size_t(j)] + 1).arg(j + 1), true);
    }
    return matrix.record();
}
