#pragma once

#include <QtCore/QList>
#include <QtCore/QPointF>

#include <optional>

/// The static curve of a dynamics processor as its calculator publishes it: corner points with x 0 (left) to 1
/// (right) and y 0 (top) to 1 (bottom), and the ranges in dB that they are relative to.
struct StaticCurve
{
    /// What y stands for.
    enum class Meaning {
        OutputLevel,
        Gain,
    };

    QList<QPointF> points;
    double inputMinimum = 0.0;
    double inputMaximum = 0.0;
    double outputMinimum = 0.0; ///< lower end of y: a level, or a gain
    double outputMaximum = 0.0;
    Meaning meaning = Meaning::OutputLevel;
    /// Gain in dB where a gate or a ducker lowers the signal below the plot: the curve then lies on the floor and does
    /// not tell how far.
    std::optional<double> floorGain = {};

    /// Gain in dB for an input level in dB.
    ///
    /// Where the curve jumps, the lower input side counts. Left of the first point the gain there holds; right of the
    /// last one, a curve of levels goes on with its last slope and a curve of gains holds. Where a curve of levels
    /// lowers the signal to the floor, the floor's gain counts if there is one. Fewer than two points, an empty range
    /// and values that are no numbers give 0: no processing.
    double gain(double inputLevel) const;

    bool operator==(const StaticCurve &) const = default;

private:
    double y(double x) const;
};
