#include "fader/FaderMarks.h"

#include "scale/LabelRoom.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tamble::client {

namespace {

constexpr std::array roundLevels{40.0, 30.0, 20.0, 10.0, 5.0, -5.0, -10.0, -20.0, -30.0, -40.0, -50.0, -60.0, -80.0};

// Labels of levels with the room that they take along the travel, in the order of their importance.
std::vector<FaderMark> labelled(std::vector<FaderMark> marks, double spacing)
{
    QList<LabelSpan> spans;
    for (const FaderMark &mark : marks)
        spans.append({mark.position, 0.0});
    // With a little room: a spacing of exactly a twelfth of the travel must fit twelve times.
    constexpr double tolerance = 1e-6;
    const QList<bool> shown = labelsWithRoom(spans, spacing - tolerance);
    for (std::size_t i = 0; i < marks.size(); ++i)
        marks[i].isLabelled = shown[qsizetype(i)];
    return marks;
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
        if (travel.contains(level))
            marks.push_back({level, travel.position(level), false});
    }
    marks = labelled(std::move(marks), spacing);
    std::erase_if(marks, [](const FaderMark &mark) { return !mark.isLabelled; });
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
        if (travel.contains(level))
            marks.push_back({level, travel.position(level), false});
    }
    return labelled(std::move(marks), spacing);
}

} // namespace tamble::client
