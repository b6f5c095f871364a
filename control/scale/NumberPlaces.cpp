#include "scale/NumberPlaces.h"

#include <algorithm>

namespace tamble::client {

namespace {

/// A number's place after shifting.
struct Place
{
    double start = 0.0;
    double end = 0.0;
};

Place placeInside(const NumberSpan &number, double axisLength)
{
    const double highest = std::max(axisLength - number.length, 0.0);
    const double start = std::clamp(number.centre - number.length / 2.0, 0.0, highest);
    return {start, start + number.length};
}

/// Whichever of the two comes first: an axis may run backwards.
bool areTooClose(const Place &a, const Place &b, double gap)
{
    return a.start < b.end + gap && b.start < a.end + gap;
}

} // namespace

QList<std::optional<double>> numberStarts(const QList<NumberSpan> &numbers, double axisLength, double gap)
{
    QList<std::optional<double>> starts(numbers.size());
    if (numbers.isEmpty())
        return starts;

    const Place last = placeInside(numbers.last(), axisLength);
    std::optional<Place> previous;
    for (qsizetype i = 0; i < numbers.size() - 1; ++i) {
        const Place place = placeInside(numbers[i], axisLength);
        if (areTooClose(place, last, gap) || (previous && areTooClose(place, *previous, gap)))
            continue;
        starts[i] = place.start;
        previous = place;
    }
    starts.last() = last.start;
    return starts;
}

} // namespace tamble::client
