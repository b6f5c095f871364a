#include "fields/StepRule.h"

#include "scale/NumberText.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

// Of a step that stands for "continuous": these parts of the range.
constexpr double normalPart = 0.01;
constexpr double finePart = 0.001;
constexpr double pagePart = 0.1;

constexpr int mostDecimals = 10;

} // namespace

bool StepRule::isUsable() const
{
    return from < to;
}

double StepRule::size(StepSize size) const
{
    const double given = size == StepSize::Fine ? fine : size == StepSize::Page ? page : normal;
    if (given != 0.0 && std::isfinite(given))
        return std::abs(given);
    const double range = std::isfinite(to - from) ? to - from : 100.0;
    return range * (size == StepSize::Fine ? finePart : size == StepSize::Page ? pagePart : normalPart);
}

int StepRule::shownDecimals() const
{
    if (decimals >= 0)
        return std::min(decimals, mostDecimals);
    return std::max(decimalsOfStep(size(StepSize::Normal)), decimalsOfStep(size(StepSize::Fine)));
}

double StepRule::rounded(double value) const
{
    const double unit = std::pow(10.0, shownDecimals());
    const double scaled = std::round(value * unit);
    return std::isfinite(scaled) ? scaled / unit + 0.0 : value;
}

double StepRule::snapped(double value) const
{
    const double origin = std::isfinite(from) ? from : 0.0;
    const double step = size(StepSize::Normal);
    return std::clamp(rounded(origin + std::round((value - origin) / step) * step), from, to);
}

double StepRule::stepped(double value, StepSize size, int direction) const
{
    if (!isUsable())
        return value;
    if (std::isnan(value))
        return std::isfinite(from) ? from : std::clamp(0.0, from, to);
    if (value < from)
        return from;
    if (value > to)
        return to;
    if (wraps && value == (direction > 0 ? to : from) && std::isfinite(to - from))
        return direction > 0 ? from : to;
    return std::clamp(rounded(value + direction * this->size(size)), from, to);
}

} // namespace tamble::client
