#pragma once

#include "fader/FaderTravel.h"

#include <QtCore/QList>

#include <vector>

namespace tamble::client {

/// A tick beside a fader's travel.
struct FaderMark
{
    double level = 0.0;
    double position = 0.0;
    bool isLabelled = false;

    bool operator==(const FaderMark &) const = default;
};

/// The ticks of round levels, the ends of the range and 0 dB, of which no two are nearer than `spacing` of travel.
///
/// 0 dB and the ends go first, then higher levels before lower ones. All are labelled; the order is that of the choice.
std::vector<FaderMark> automaticMarks(const FaderTravel &travel, double spacing);

/// Ticks at given levels; those outside of the range are left out. A label within `spacing` of one chosen before it is
/// left out, 0 dB and the ends of the range going first.
std::vector<FaderMark> marksAt(const FaderTravel &travel, const QList<double> &levels, double spacing);

} // namespace tamble::client
