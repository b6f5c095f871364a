#pragma once

#include <vector>

namespace tamble::client {

/// A level in dB and the place on the travel, 0 (bottom) to 1 (top), where it stands.
struct TransferPoint
{
    double level = 0.0;
    double position = 0.0;

    bool operator==(const TransferPoint &) const = default;
};

/// Points of the piecewise linear travel law for a range in dB, lowest first.
///
/// The ranges -80…10 and -80…42 spread the levels that are mixed with; -81…10 uses the first of these tables, which
/// starts at -80 nevertheless. Any other range is linear from end to end.
std::vector<TransferPoint> transferTable(double minimum, double maximum);

/// Place of `level` on the travel by the table of the range: 0 below `minimum`, 1 above `maximum`.
///
/// Between an end of the range and the table's own end the outermost segment goes on, so -81 on -81…10 gives a little
/// less than 0. NaN gives 0.
double positionByTable(double level, double minimum, double maximum);

/// Level at `position` on the travel: `minimum` below 0, `maximum` above 1. NaN gives `minimum`.
double levelByTable(double position, double minimum, double maximum);

} // namespace tamble::client
