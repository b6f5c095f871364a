#include "bars/FlashPhase.h"

namespace tamble::client {

namespace {

constexpr qint64 phaseMs = 500;

} // namespace

bool isFlashLit(qint64 now)
{
    return now / phaseMs % 2 == 0;
}

int nextFlashIn(qint64 now)
{
    return int(phaseMs - now % phaseMs);
}

} // namespace tamble::client
