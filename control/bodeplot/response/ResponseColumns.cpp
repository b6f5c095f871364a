#include "bodeplot/response/ResponseColumns.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamble::client {

using tamble::common::lin2lin;
using tamble::common::log2lin;

namespace {

/// Rounds, and keeps what no index can be within the numbers of int.
int toIndex(double position)
{
    constexpr double limit = 1e9;
    return int(std::lround(std::clamp(position, -limit, limit)));
}

} // namespace

LevelScale::LevelScale(const ResponseView &view, double offset)
    : m_offset(offset)
    , m_base(view.axes.y.from)
    , m_top(view.axes.y.to)
    , m_range(view.axes.y.to - view.axes.y.from)
    , m_bottom(view.rows())
    , m_constant(!std::isfinite(offset) || !std::isfinite(m_range) || m_range == 0.0)
{}

void columnSamples(const ResponseView &view, std::vector<int> &samples)
{
    const auto index = [&](double frequencyHz) {
        return toIndex(log2lin(frequencyHz, view.lowest, view.highest, 0.0, view.resolution));
    };
    const int start = index(view.axes.x.from);
    const int end = index(view.axes.x.to);
    const int columns = view.columns();
    samples.resize(std::size_t(columns));
    for (int i = 0; i < columns; ++i)
        samples[std::size_t(i)] = toIndex(lin2lin(i, 0.0, columns, start, end));
}

std::optional<int> firstOutside(std::span<const int> samples, std::size_t length)
{
    const auto found = std::ranges::find_if(samples, [length](int k) { return k < 0 || std::size_t(k) >= length; });
    return found == samples.end() ? std::nullopt : std::optional(*found);
}

void scaleColumns(std::span<const double> values, std::span<const int> samples, const LevelScale &scale,
                  std::vector<double> &columns)
{
    columns.resize(samples.size());
    std::ranges::transform(samples, columns.begin(), [&](int k) {
        const bool present = k >= 0 && std::size_t(k) < values.size();
        return present ? scale(values[std::size_t(k)]) : std::numeric_limits<double>::quiet_NaN();
    });
}

} // namespace tamble::client
