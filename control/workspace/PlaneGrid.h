#pragma once

#include <QtCore/QList>

namespace tamble::client {

/// Distance of the lines that a grid shows: `gridSize` times the smallest power of two, 1 included, at which they are
/// at least 8 pixels apart; 0, for none, when the sizes are not positive numbers.
double shownGridSize(double gridSize, double pixelsPerUnit);

/// Where the multiples of `step` between `begin` and `end` are on the way from one to the other, 0 to 1; none for a
/// step of 0.
QList<double> gridPlaces(double begin, double end, double step);

} // namespace tamble::client
