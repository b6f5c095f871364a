#include "fader/RTransferTable.h"

#include "fader/TransferTable.h"

namespace tamble::client {

QVariantList RTransferTable::points(double minimum, double maximum) const
{
    QVariantList points;
    for (const TransferPoint &point : transferTable(minimum, maximum))
        points.append(QVariant(QVariantList{point.level, point.position}));
    return points;
}

double RTransferTable::position(double level, double minimum, double maximum) const
{
    return positionByTable(level, minimum, maximum);
}

double RTransferTable::level(double position, double minimum, double maximum) const
{
    return levelByTable(position, minimum, maximum);
}

} // namespace tamble::client
