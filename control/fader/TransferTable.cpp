#include "fader/TransferTable.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>

namespace tamble::client {

using common::lin2lin;

std::vector<TransferPoint> transferTable(double minimum, double maximum)
{
    if ((minimum == -80.0 || minimum == -81.0) && maximum == 10.0) {
        return {{-80.0, 0.0},  {-50.0, 0.05}, {-30.0, 0.15}, {-20.0, 0.3}, {-10.0, 0.5},
                {-5.0, 0.625}, {0.0, 0.75},   {5.0, 0.875},  {10.0, 1.0}};
    }
    if (minimum == -80.0 && maximum == 42.0) {
        return {{-80.0, 0.0}, {-50.0, 0.05}, {-30.0, 0.1},  {-20.0, 0.225}, {-10.0, 0.35},
                {0.0, 0.5},   {10.0, 0.6},   {20.0, 0.725}, {30.0, 0.85},   {42.0, 1.0}};
    }
    return {{minimum, 0.0}, {maximum, 1.0}};
}

double positionByTable(double level, double minimum, double maximum)
{
    if (level < minimum)
        return 0.0;
    if (level > maximum)
        return 1.0;
    const std::vector<TransferPoint> table = transferTable(minimum, maximum);
    const auto end = std::find_if(table.begin() + 1, table.end(), [=](TransferPoint p) { return p.level >= level; });
    if (end == table.end())
        return lin2lin(level, minimum, maximum, 0.0, 1.0);
    const TransferPoint &begin = *(end - 1);
    return lin2lin(level, begin.level, end->level, begin.position, end->position);
}

double levelByTable(double position, double minimum, double maximum)
{
    if (position < 0.0)
        return minimum;
    if (position > 1.0)
        return maximum;
    const std::vector<TransferPoint> table = transferTable(minimum, maximum);
    const auto end =
        std::find_if(table.begin() + 1, table.end(), [=](TransferPoint p) { return p.position >= position; });
    if (end == table.end())
        return lin2lin(position, 0.0, 1.0, minimum, maximum);
    const TransferPoint &begin = *(end - 1);
    return lin2lin(position, begin.position, end->position, begin.level, end->level);
}

} // namespace tamble::client
