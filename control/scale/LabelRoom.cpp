#include "scale/LabelRoom.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace tamble::client {

QList<bool> labelsWithRoom(const QList<LabelSpan> &labels, double gap)
{
    QList<qsizetype> order(labels.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](qsizetype i) { return labels[i].rank; });

    QList<bool> shown(labels.size(), false);
    for (const qsizetype candidate : std::as_const(order)) {
        const LabelSpan &label = labels[candidate];
        const auto isInTheWay = [&](qsizetype other) {
            const double needed = (label.length + labels[other].length) / 2.0 + gap;
            return shown[other] && std::abs(label.centre - labels[other].centre) < needed;
        };
        shown[candidate] = std::ranges::none_of(order, isInTheWay);
    }
    return shown;
}

QList<std::optional<double>> numberStarts(QList<LabelSpan> numbers, double axisLength, double gap)
{
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        LabelSpan &number = numbers[i];
        const double highest = std::max(axisLength - number.length / 2.0, number.length / 2.0);
        number.centre = std::clamp(number.centre, number.length / 2.0, highest);
        number.rank = i + 1 == numbers.size() ? 0 : 1;
    }
    QList<std::optional<double>> starts(numbers.size());
    const QList<bool> shown = labelsWithRoom(numbers, gap);
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        if (shown[i])
            starts[i] = numbers[i].centre - numbers[i].length / 2.0;
    }
    return starts;
}

} // namespace tamble::client
