#pragma once

#include <QtCore/QtGlobal>

namespace tamble::client {

/// Whether what flashes is lit: in every other half second of the clock, and so in step with whatever else flashes,
/// in other processes too. `now` is in ms since the epoch.
bool isFlashLit(qint64 now);

/// ms until that changes, 1 to 500.
int nextFlashIn(qint64 now);

} // namespace tamble::client
