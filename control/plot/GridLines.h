#pragma once

#include "scenegraph/StrokeGeometry.h"

#include <QtCore/QSizeF>
#include <QtGui/QColor>

#include <optional>

namespace tamble::client {

/// Line across an item at a position of 0 (bottom) to 1 (top).
QLineF horizontalLine(double position, const QSizeF &size);
/// Line along an item's height at a position of 0 (left) to 1 (right).
QLineF verticalLine(double position, const QSizeF &size);

/// Lines of one direction: finer ones and, over them, major ones. Widths in pixels.
struct LineFamily
{
    QList<double> positions;
    QList<double> majorPositions;
    QColor color = Qt::black;
    QColor majorColor = Qt::black;
    double lineWidth = 1.0;
    double majorLineWidth = 1.0;
    bool visible = true;
};

/// A grid's two families, either of which may be absent, its frame, and how many device pixels a pixel has.
struct GridDescription
{
    std::optional<LineFamily> horizontal;
    std::optional<LineFamily> vertical;
    bool frameVisible = false;
    double pixelRatio = 1.0;
};

/// All lines of one colour, as triangles, so that lines of different widths share a node.
struct ColoredLines
{
    QColor color;
    StrokeGeometry stroke;
};

/// The lines of a grid by colour, in drawing order: finer lines, major lines, frame.
///
/// Positions outside 0…1 are skipped, and so are finer lines that coincide with a major one. The frame lies inside the
/// item and takes colour and width of the major lines, those of the horizontal family first; a grid without families
/// has none. An empty size gives no lines. Lines of a positive width are at least one device pixel wide, since
/// triangles that cover no middle of a pixel are not seen.
QList<ColoredLines> gridLines(const GridDescription &grid, const QSizeF &size);

} // namespace tamble::client
