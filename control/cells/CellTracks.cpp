#include "cells/CellTracks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tamble::client {

namespace {

double positiveOr(double size, double fallback)
{
    return std::isfinite(size) && size > 0.0 ? size : fallback;
}

} // namespace

CellTracks::CellTracks(double size, const QList<qreal> &ownSizes, double spacing)
    : m_size(positiveOr(size, 0.0))
    , m_spacing(positiveOr(spacing, 0.0))
{
    m_starts.reserve(std::size_t(ownSizes.size()) + 1);
    for (const qreal ownSize : ownSizes)
        m_starts.push_back(m_starts.back() + positiveOr(ownSize, m_size) + m_spacing);
}

double CellTracks::start(int track) const
{
    const auto index = std::size_t(std::max(track, 0));
    const std::size_t known = std::min(index, m_starts.size() - 1);
    return m_starts[known] + double(index - known) * (m_size + m_spacing);
}

double CellTracks::extent(int first, int count) const
{
    const auto end = std::int64_t(std::max(first, 0)) + std::max(count, 1);
    return start(int(std::min<std::int64_t>(end, std::numeric_limits<int>::max()))) - start(first) - m_spacing;
}

} // namespace tamble::client
