#include "fader/FaderMarks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tamble::client {

namespace {

constexpr std::array roundLevels{40.0, 30.0, 20.0, 10.0, 5.0, -5.0, -10.0, -20.0, -30.0, -40.0, -50.0, -60.0, -80.0};

// Distances are compared with a little room: a spacing of exactly a twelfth of the travel must fit twelve times.
constexpr double tolerance = 1e-6;

bool hasRoom(const std::vector<FaderMark> &marks, double position, double spacing)
{
    return std::none_of(marks.begin(), marks.end(), [=](const FaderMark &mark) {
        return mark.isLabelled && std::abs(mark.position - position) < spacing - tolerance;
    });
}

} // namespace

std::vector<FaderMark> automaticMarks(const FaderTravel &travel, double spacing)
{
    std::vector<FaderMark> marks;
    if (!travel.isUsable() || !(spacing > 0.0))
        return marks;
    std::vector<double> levels{0.0, travel.from, travel.to};
    levels.insert(levels.end(), roundLevels.begin(), roundLevels.end());
    for (const double level : levels) {
        const double position = travel.position(level);
        if (travel.contains(level) && hasRoom(marks, position, spacing))
            marks.push_back({level, position, true});
    }
    return marks;
}

std::vector<FaderMark> marksAt(const FaderTravel &travel, const QList<double> &levels, double spacing)
{
    std::vector<FaderMark> marks;
    if (!travel.isUsable())
        return marks;
    QList<double> ordered = levels;
    std::stable_partition(ordered.begin(), ordered.end(),
                          [&](double level) { return level == 0.0 || level == travel.from || level == travel.to; });
    for (const double level : ordered) {
        if (!travel.contains(level))
            continue;
        const double position = travel.position(level);
        marks.push_back({level, position, hasRoom(marks, position, spacing)});
    }
    return marks;
}

} // namespace tamble::client
