#pragma once

#include "bodeplot/filters/FilterRecords.h"
#include "bodeplot/response/ResponseLines.h"
#include "plot/CurveAreaNode.h"
#include "scenegraph/SmoothStrokeNode.h"

#include <QtQuick/QSGClipNode>

#include <vector>

namespace tamble::client {

/// Colour and width of one kind of line; a colour that does not show draws nothing.
struct LineStyle
{
    QColor color = Qt::transparent;
    double width = 1.0;

    bool operator==(const LineStyle &) const = default;
};

/// How the lines and the area of a curve are drawn.
struct CurveStyle
{
    LineStyle aggregated;
    LineStyle individual;
    LineStyle bypass;
    LineStyle selected;
    QColor area = Qt::transparent;
    AreaSaturation saturation;

    bool operator==(const CurveStyle &) const = default;
};

/// What a curve's node shows.
struct ResponseScene
{
    const ResponseLines &lines;
    const FilterRecords &records;
    int selectedRecord = -1;
    const CurveStyle &style;
    QSizeF size;
    double pixelRatio = 1.0;
};

/// Scene-graph node of a whole curve, cut off at the item's edges: the area, the lines of the records, the selected one
/// and the sum. Lines that look alike are one strip, since each node more is a call more for the graphics card. Its
/// nodes stay, and what did not change touches none of them.
class ResponseCurveNode : public QSGClipNode
{
public:
    ResponseCurveNode();

    void show(const ResponseScene &scene);

    /// How many lines and areas were written so far.
    int rewriteCount() const { return m_rewriteCount; }

private:
    using Lines = std::vector<const ResponseLine *>;

    /// Lines of one look, with what the node was last given.
    struct LineGroup
    {
        SmoothStrokeNode node;
        std::vector<unsigned> revisions;
        StrokeWidth width;
    };

    void showFrame(const QSizeF &size);
    void showArea(const ResponseScene &scene);
    void showLines(LineGroup &group, const Lines &lines, const LineStyle &style, double pixelRatio);

    QSGGeometry m_frame;
    CurveAreaNode m_area;
    unsigned m_areaRevision = 0;
    AreaSaturation m_areaSaturation;
    LineGroup m_bypass;
    LineGroup m_individual;
    LineGroup m_selected;
    LineGroup m_aggregated;
    Lines m_lines; ///< Here and below: kept for the capacity.
    std::vector<unsigned> m_revisions;
    int m_rewriteCount = 0;
};

} // namespace tamble::client
