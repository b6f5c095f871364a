#pragma once

#include "scale/PlotAxes.h"

#include <QtCore/QSizeF>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

namespace tamble::client {

/// What part of a computed response an item of some size shows. The response has `resolution` values in equal ratios of
/// frequency, from `lowest` to `highest` Hz.
struct ResponseView
{
    PlotAxes axes;
    QSizeF size;
    int resolution = 4096;
    double lowest = 20.0;
    double highest = 20000.0;

    /// Number of pixel columns and rows that count: the size without fractions. An item larger than any screen has the
    /// most there can be, spread over the whole of it.
    int columns() const { return int(std::min(size.width(), mostPixels)); }
    int rows() const { return int(std::min(size.height(), mostPixels)); }
    /// Whether there is a column and a row to draw into.
    bool isEmpty() const { return !(isDrawable(size.width()) && isDrawable(size.height())); }

    bool operator==(const ResponseView &) const = default;

private:
    static constexpr double mostPixels = 16384.0;

    static bool isDrawable(double length) { return length >= 1.0 && std::isfinite(length); }
};

/// Pixel y of a value: the upper end of the axis is 0, the lower one the number of rows. A range that is empty or not
/// finite puts everything to the bottom.
class LevelScale
{
public:
    /// `offset` is added to every value.
    LevelScale(const ResponseView &view, double offset);

    double operator()(double value) const
    {
        const double level = value + m_offset;
        if (m_constant)
            return m_bottom;
        return level == m_top ? 0.0 : m_bottom + (level - m_base) * -m_bottom / m_range;
    }

private:
    double m_offset;
    double m_base;
    double m_top;
    double m_range;
    double m_bottom;
    bool m_constant;
};

/// Index of the computed value that each pixel column shows, also for columns left and right of the computed range.
void columnSamples(const ResponseView &view, std::vector<int> &samples);

/// The first of the indices that is outside 0 to length - 1.
std::optional<int> firstOutside(std::span<const int> samples, std::size_t length);

/// Pixel y of each column; NaN where its index is outside the values.
void scaleColumns(std::span<const double> values, std::span<const int> samples, const LevelScale &scale,
                  std::vector<double> &columns);

} // namespace tamble::client
