#pragma once

#include <QtCore/QList>

#include <vector>

namespace tamble::client {

/// The columns or the rows of a table: where each begins and how far several of them reach, in pixels.
///
/// All have one size but those at the front that are given one each. Sizes and the spacing between tracks that are no
/// positive number count as 0, and in the list as not given.
class CellTracks
{
public:
    CellTracks() = default;
    CellTracks(double size, const QList<qreal> &ownSizes, double spacing);

    /// Where a track begins; a negative one counts as the first.
    double start(int track) const;
    /// From the beginning of the first of `count` tracks to the end of the last; a count below 1 counts as 1.
    double extent(int first, int count) const;

    friend bool operator==(const CellTracks &, const CellTracks &) = default;

private:
    double m_size = 0.0;
    double m_spacing = 0.0;
    std::vector<double> m_starts{0.0}; ///< Of the tracks with a size of their own, and of the first one behind them.
};

} // namespace tamble::client
