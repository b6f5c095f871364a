#pragma once

#include <QtCore/QList>
#include <QtCore/QRectF>

/// A block on the plan of the installation: a device, or a loudspeaker at an amplifier.
struct StageBlock
{
    int device;
    int way = 0;    ///< output of the amplifier, from 1; 0 for the device itself
    int number = 0; ///< of the loudspeaker at that output, from 1
    QPointF place;  ///< top left corner, in plane units

    bool isLoudspeaker() const { return way > 0; }
};

/// Rows of the plan, from `first` on.
struct BlockRange
{
    int first;
    int count;
};

/// The whole installation on a plan as the installer drew it: 2,000 blocks, the devices in the order of their numbers,
/// then the loudspeakers in the order of amplifiers and outputs. An amplifier stands above its loudspeakers: two
/// arrays, the subwoofers and the fills.
const QList<StageBlock> &stagePlan();
/// The plane, with a margin around all blocks.
QRectF stageArea();
/// The loudspeakers of an amplifier, and those at one of its outputs, which count from 1.
BlockRange loudspeakersOf(int amplifier);
BlockRange loudspeakersOf(int amplifier, int way);
