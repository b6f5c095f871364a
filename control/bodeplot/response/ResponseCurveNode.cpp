#include "bodeplot/response/ResponseCurveNode.h"

#include "base/StyleObject.h"

#include <initializer_list>

namespace tamble::client {

ResponseCurveNode::ResponseCurveNode()
    : m_frame(QSGGeometry::defaultAttributes_Point2D(), 4)
{
    m_frame.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_frame);
    setIsRectangular(true);
    showFrame({});
    for (QSGNode *node : std::initializer_list<QSGNode *>{&m_area, &m_bypass.node, &m_individual.node, &m_selected.node,
                                                          &m_aggregated.node}) {
        node->setFlag(OwnedByParent, false);
        appendChildNode(node);
    }
}

void ResponseCurveNode::show(const ResponseScene &scene)
{
    showFrame(scene.size);
    showArea(scene);

    const std::vector<ResponseLine> &lines = scene.lines.records();
    const auto show = [&](LineGroup &group, const LineStyle &style, const auto &belongs) {
        m_lines.clear();
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (belongs(i))
                m_lines.push_back(&lines[i]);
        }
        showLines(group, m_lines, style, scene.pixelRatio);
    };
    const auto isSelected = [&](std::size_t i) { return int(i) == scene.selectedRecord; };
    const auto isBypass = [&](std::size_t i) { return i < scene.records.size() && scene.records[i].display().bypass; };
    show(m_bypass, scene.style.bypass, [&](std::size_t i) { return isBypass(i) && !isSelected(i); });
    show(m_individual, scene.style.individual, [&](std::size_t i) { return !isBypass(i) && !isSelected(i); });
    show(m_selected, scene.style.selected, isSelected);
    m_lines.assign(1, &scene.lines.aggregated());
    showLines(m_aggregated, m_lines, scene.style.aggregated, scene.pixelRatio);
}

void ResponseCurveNode::showFrame(const QSizeF &size)
{
    const QRectF frame(QPointF(), size);
    if (clipRect() == frame)
        return;
    setClipRect(frame);
    QSGGeometry::updateRectGeometry(&m_frame, frame);
    markDirty(DirtyGeometry);
}

void ResponseCurveNode::showArea(const ResponseScene &scene)
{
    const bool shows = showsColor(scene.style.area);
    if (shows)
        m_area.setColor(scene.style.area);
    const unsigned revision = shows ? scene.lines.aggregated().revision : 0;
    if (m_areaRevision == revision && m_areaSaturation == scene.style.saturation)
        return;
    m_areaRevision = revision;
    m_areaSaturation = scene.style.saturation;
    ++m_rewriteCount;
    m_area.begin(scene.lines.axisY(), scene.style.saturation);
    const PolylineRuns &area = scene.lines.area();
    for (std::size_t i = 0; shows && i < area.count(); ++i)
        m_area.add(area.run(i));
    m_area.end();
}

void ResponseCurveNode::showLines(LineGroup &group, const Lines &lines, const LineStyle &style, double pixelRatio)
{
    m_revisions.clear();
    if (showsColor(style.color)) {
        group.node.setColor(style.color);
        for (const ResponseLine *line : lines)
            m_revisions.push_back(line->revision);
    }
    const StrokeWidth width{style.width, pixelRatio};
    if (group.revisions == m_revisions && (m_revisions.empty() || group.width == width))
        return;
    group.revisions = m_revisions;
    group.width = width;
    ++m_rewriteCount;
    group.node.begin(width);
    for (std::size_t i = 0; i < m_revisions.size(); ++i) {
        const PolylineRuns &points = lines[i]->points;
        for (std::size_t run = 0; run < points.count(); ++run)
            group.node.add(points.run(run));
    }
    group.node.end();
}

} // namespace tamble::client
