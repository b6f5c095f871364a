#pragma once

#include <span>

/// Levels of one channel over one block, in dB below full scale: `floorDb` for silence, above 0 for samples beyond
/// full scale. The RMS value of a full-scale sine is −3 dB.
struct BlockLevel
{
    double peak = 0.0;
    double rms = 0.0;

    bool operator==(const BlockLevel &) const = default;
};

/// Measures the interleaved block `samples`, whose frames have as many channels as `levels`. Samples that are not
/// finite count as 0; an empty block is silent.
void measureLevels(std::span<const float> samples, std::span<BlockLevel> levels);
