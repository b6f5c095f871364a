#include "StagePlan.h"

#include "InstalledDevices.h"

#include <array>

namespace {

constexpr int blockCount = 2000;
constexpr QSizeF pitch(112.0, 80.0); // of blocks of 96 × 64
constexpr double margin = 160.0;
constexpr int zoneColumns = 6; // as many as there are places in the house
constexpr QSizeF zoneSize(10 * pitch.width() + 80.0, 10 * pitch.height() + 80.0);
constexpr double headRoom = 160.0; // for the devices that drive no loudspeakers

/// Loudspeakers at one output, in columns side by side.
struct Way
{
    int count;
    int firstColumn; ///< in the zone of the amplifier
    int perColumn;
};
constexpr std::array<Way, 4> ways{{{24, 0, 8}, {24, 3, 8}, {18, 6, 9}, {16, 8, 9}}};
constexpr int perAmplifier = 82;
// The last output of the first amplifiers has one loudspeaker more.
constexpr int deviceCount = amplifierCount + mixerCount + 1;
constexpr int amplifiersWithMore = blockCount - deviceCount - amplifierCount * perAmplifier;

int countOf(int amplifier, int way)
{
    const bool hasMore = way == int(ways.size()) && amplifier < amplifiersWithMore;
    return ways[std::size_t(way - 1)].count + (hasMore ? 1 : 0);
}

QPointF zoneOf(int amplifier)
{
    const int column = amplifier % zoneColumns;
    const int row = amplifier / zoneColumns;
    return {margin + zoneSize.width() * column, margin + headRoom + zoneSize.height() * row};
}

/// In the middle of the top: the mixers and the matrix.
QPointF placeOfDevice(int device)
{
    if (device < amplifierCount)
        return zoneOf(device);
    const double middle = margin + zoneSize.width() * zoneColumns / 2;
    return {middle + 2 * pitch.width() * (device - amplifierCount - 1), margin};
}

QPointF placeOfLoudspeaker(int amplifier, int way, int number)
{
    const Way &group = ways[std::size_t(way - 1)];
    const int column = group.firstColumn + (number - 1) / group.perColumn;
    const int row = 1 + (number - 1) % group.perColumn;
    return zoneOf(amplifier) + QPointF(column * pitch.width(), row * pitch.height());
}

QList<StageBlock> drawnPlan()
{
    QList<StageBlock> plan;
    plan.reserve(blockCount);
    for (int device = 0; device < deviceCount; ++device)
        plan.append({device, 0, 0, placeOfDevice(device)});
    for (int amplifier = 0; amplifier < amplifierCount; ++amplifier) {
        for (int way = 1; way <= int(ways.size()); ++way) {
            for (int number = 1; number <= countOf(amplifier, way); ++number)
                plan.append({amplifier, way, number, placeOfLoudspeaker(amplifier, way, number)});
        }
    }
    return plan;
}

} // namespace

const QList<StageBlock> &stagePlan()
{
    static const QList<StageBlock> plan = drawnPlan();
    return plan;
}

QRectF stageArea()
{
    constexpr int zoneRows = (amplifierCount + zoneColumns - 1) / zoneColumns;
    return {0.0, 0.0, 2 * margin + zoneColumns * zoneSize.width(),
            2 * margin + headRoom + zoneRows * zoneSize.height()};
}

BlockRange loudspeakersOf(int amplifier)
{
    const int first = deviceCount + amplifier * perAmplifier + qMin(amplifier, amplifiersWithMore);
    return {first, perAmplifier + (amplifier < amplifiersWithMore ? 1 : 0)};
}

BlockRange loudspeakersOf(int amplifier, int way)
{
    int first = loudspeakersOf(amplifier).first;
    for (int before = 1; before < way; ++before)
        first += countOf(amplifier, before);
    return {first, countOf(amplifier, way)};
}
