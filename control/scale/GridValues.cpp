#include "scale/GridValues.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>

namespace tamble::client {

namespace {

constexpr int maximumLines = 1000;
/// In steps: keeps the line at a bound that rounding puts just outside, such as 7 · 0.1 in a range up to 0.7.
constexpr double boundTolerance = 1e-9;
/// 2⁵³: up to here every whole number is one of its own.
constexpr double exactSteps = 9007199254740992.0;

std::optional<QList<double>> linearValues(const GridRule &rule)
{
    if (!(rule.step > 0.0) || std::isinf(rule.step))
        return std::nullopt;
    const double first = std::ceil((rule.range.lowest() - rule.origin) / rule.step - boundTolerance);
    const double last = std::floor((rule.range.highest() - rule.origin) / rule.step + boundTolerance);
    if (!(last - first < maximumLines))
        return std::nullopt;
    // Far from the origin, numbers are further apart than steps: no place is right then.
    if (std::max(std::abs(first), std::abs(last)) > exactSteps)
        return std::nullopt;

    QList<double> values;
    const int count = int(std::max(last - first + 1.0, 0.0));
    for (int i = 0; i < count; ++i)
        values.append(rule.origin + (first + i) * rule.step);
    if (std::adjacent_find(values.cbegin(), values.cend(), std::greater_equal<>()) != values.cend())
        return std::nullopt;
    return values;
}

double timesPowerOfTen(int digit, int exponent)
{
    // Dividing rounds once: 3 / 10 is the number nearest to 0.3, 3 · 0.1 is not.
    return exponent < 0 ? digit / std::pow(10.0, -exponent) : digit * std::pow(10.0, exponent);
}

std::optional<QList<double>> logarithmicValues(const AxisRange &range, std::initializer_list<int> digits,
                                               int decadeStride)
{
    QList<double> values;
    const int lastExponent = int(std::floor(std::log10(range.highest())));
    for (int exponent = int(std::floor(std::log10(range.lowest()))); exponent <= lastExponent; ++exponent) {
        if (exponent % decadeStride != 0)
            continue;
        for (const int digit : digits) {
            const double value = timesPowerOfTen(digit, exponent);
            if (range.contains(value))
                values.append(value);
        }
    }
    if (values.size() > maximumLines)
        return std::nullopt;
    return values;
}

void addEnds(QList<double> &values, const AxisRange &range)
{
    const double tolerance = (range.highest() - range.lowest()) * boundTolerance;
    if (values.isEmpty() || values.first() - range.lowest() > tolerance)
        values.prepend(range.lowest());
    if (range.highest() - values.last() > tolerance)
        values.append(range.highest());
}

/// 1, 2, 5, 10, 20, 50 …
int nextStride(int stride)
{
    int leading = stride;
    while (leading % 10 == 0)
        leading /= 10;
    return leading == 2 ? stride / 2 * 5 : stride * 2;
}

/// Values of the thinning with the given number, 0 for all values.
std::optional<QList<double>> valuesOfThinning(const GridRule &rule, int thinning)
{
    const bool isLogarithmic = rule.range.scale == AxisScale::Logarithmic;
    if (isLogarithmic && thinning == 0)
        return gridValues(rule);
    if (isLogarithmic && thinning == 1)
        return logarithmicValues(rule.range, {1, 2, 5}, 1);
    int stride = 1;
    for (int i = isLogarithmic ? 2 : 0; i < thinning; ++i)
        stride = nextStride(stride);
    if (isLogarithmic)
        return logarithmicValues(rule.range, {1}, stride);
    GridRule wider = rule;
    wider.step = rule.step * stride;
    return gridValues(wider);
}

} // namespace

std::optional<QList<double>> gridValues(const GridRule &rule)
{
    const bool isLogarithmic = rule.range.scale == AxisScale::Logarithmic;
    if (!rule.range.isUsable())
        return QList<double>();
    std::optional<QList<double>> values =
        isLogarithmic ? logarithmicValues(rule.range, {1, 2, 3, 4, 5, 6, 7, 8, 9}, 1) : linearValues(rule);
    if (values && rule.includeEnds)
        addEnds(*values, rule.range);
    return values;
}

std::optional<QList<double>> thinnedGridValues(const GridRule &rule, int maximumCount)
{
    if (maximumCount <= 0 || !rule.range.isUsable())
        return gridValues(rule);

    // 25 thinnings reach strides of 10⁸; what is still too much then is out of range.
    constexpr int maximumThinnings = 25;
    std::optional<QList<double>> previous;
    for (int thinning = 0; thinning < maximumThinnings; ++thinning) {
        std::optional<QList<double>> values = valuesOfThinning(rule, thinning);
        if (values && values->isEmpty() && previous)
            return previous->first(maximumCount);
        if (values && values->size() <= maximumCount)
            return values;
        previous = std::move(values);
    }
    return std::nullopt;
}

} // namespace tamble::client
