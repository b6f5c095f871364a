#include "plot/GridLines.h"

#include <algorithm>

namespace tamble::client {

namespace {

using LineAt = QLineF (*)(double, const QSizeF &);

/// Collects lines, one list of triangles per colour.
class LineCollector
{
public:
    void add(const QColor &color, const QLineF &line, double width)
    {
        auto found =
            std::find_if(m_lines.begin(), m_lines.end(), [&](const auto &lines) { return lines.color == color; });
        if (found == m_lines.end())
            found = m_lines.insert(m_lines.end(), {color, {StrokeMode::Triangles, {}, 1.0}});
        appendSegmentTriangles(found->stroke.vertices, line, width);
    }

    QList<ColoredLines> take()
    {
        m_lines.removeIf([](const ColoredLines &lines) { return lines.stroke.vertices.isEmpty(); });
        return std::move(m_lines);
    }

private:
    QList<ColoredLines> m_lines;
};

bool isInside(double position)
{
    return position >= 0.0 && position <= 1.0;
}

/// Widths that are not positive stay, and draw nothing.
double visibleWidth(double width, double pixelRatio)
{
    return width > 0.0 ? std::max(width, 1.0 / pixelRatio) : width;
}

LineFamily withVisibleWidths(LineFamily family, double pixelRatio)
{
    family.lineWidth = visibleWidth(family.lineWidth, pixelRatio);
    family.majorLineWidth = visibleWidth(family.majorLineWidth, pixelRatio);
    return family;
}

void addFiner(LineCollector &collector, const LineFamily &family, LineAt lineAt, const QSizeF &size)
{
    for (const double position : family.positions) {
        if (isInside(position) && !family.majorPositions.contains(position))
            collector.add(family.color, lineAt(position, size), family.lineWidth);
    }
}

void addMajor(LineCollector &collector, const LineFamily &family, LineAt lineAt, const QSizeF &size)
{
    for (const double position : family.majorPositions) {
        if (isInside(position))
            collector.add(family.majorColor, lineAt(position, size), family.majorLineWidth);
    }
}

/// The four edges; the upright ones end at the level ones, so that a translucent corner is not drawn twice.
void addFrame(LineCollector &collector, const LineFamily &look, const QSizeF &size)
{
    const double width = look.majorLineWidth;
    const double right = size.width() - width / 2.0;
    const double bottom = size.height() - width / 2.0;
    const QLineF edges[] = {{0.0, width / 2.0, size.width(), width / 2.0},
                            {0.0, bottom, size.width(), bottom},
                            {width / 2.0, width, width / 2.0, size.height() - width},
                            {right, width, right, size.height() - width}};
    for (const QLineF &edge : edges)
        collector.add(look.majorColor, edge, width);
}

} // namespace

QLineF horizontalLine(double position, const QSizeF &size)
{
    const double y = size.height() * (1.0 - position);
    return {0.0, y, size.width(), y};
}

QLineF verticalLine(double position, const QSizeF &size)
{
    const double x = size.width() * position;
    return {x, 0.0, x, size.height()};
}

QList<ColoredLines> gridLines(const GridDescription &grid, const QSizeF &size)
{
    if (size.isEmpty())
        return {};
    const auto family = [&](const std::optional<LineFamily> &given) {
        return withVisibleWidths(given.value_or(LineFamily()), grid.pixelRatio);
    };
    LineCollector collector;
    const LineFamily vertical = family(grid.vertical);
    const LineFamily horizontal = family(grid.horizontal);
    if (vertical.visible)
        addFiner(collector, vertical, verticalLine, size);
    if (horizontal.visible)
        addFiner(collector, horizontal, horizontalLine, size);
    if (vertical.visible)
        addMajor(collector, vertical, verticalLine, size);
    if (horizontal.visible)
        addMajor(collector, horizontal, horizontalLine, size);
    if (grid.frameVisible && (grid.horizontal || grid.vertical))
        addFrame(collector, grid.horizontal ? horizontal : vertical, size);
    return collector.take();
}

} // namespace tamble::client
