#include "bodeplot/ResponseCurveNode.h"

#include "bodeplot/StyleObject.h"

namespace tamble::client {

ResponseCurveNode::ResponseCurveNode()
    : m_frame(QSGGeometry::defaultAttributes_Point2D(), 4)
{
    m_frame.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_frame);
    setIsRectangular(true);
    showFrame({});
    for (QSGNode *node : {static_cast<QSGNode *>(&m_area), &m_group, static_cast<QSGNode *>(&m_selected.node),
                          static_cast<QSGNode *>(&m_aggregated.node)}) {
        node->setFlag(OwnedByParent, false);
        appendChildNode(node);
    }
}

void ResponseCurveNode::show(const ResponseScene &scene)
{
    showFrame(scene.size);
    showArea(scene);

    const std::vector<ResponseLine> &lines = scene.lines.records();
    setRecordCount(lines.size());
    const ResponseLine *selected = nullptr;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool isSelected = int(i) == scene.selectedRecord;
        const bool bypass = i < scene.records.size() && recordDisplay(scene.records[i].data()).bypass;
        const LineStyle &style = bypass ? scene.style.bypass : scene.style.individual;
        showLine(*m_records[i], isSelected ? nullptr : &lines[i], style, scene.pixelRatio);
        if (isSelected)
            selected = &lines[i];
    }
    showLine(m_selected, selected, scene.style.selected, scene.pixelRatio);
    showLine(m_aggregated, &scene.lines.aggregated(), scene.style.aggregated, scene.pixelRatio);
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

void ResponseCurveNode::showLine(LineNode &target, const ResponseLine *line, const LineStyle &style, double pixelRatio)
{
    const bool shows = line && showsColor(style.color);
    if (shows)
        target.node.setColor(style.color);
    const unsigned revision = shows ? line->revision : 0;
    const StrokeWidth width{style.width, pixelRatio};
    if (target.revision == revision && (revision == 0 || target.width == width))
        return;
    target.revision = revision;
    target.width = width;
    ++m_rewriteCount;
    target.node.begin(width);
    for (std::size_t i = 0; shows && i < line->points.count(); ++i)
        target.node.add(line->points.run(i));
    target.node.end();
}

void ResponseCurveNode::setRecordCount(std::size_t count)
{
    while (m_records.size() > count) {
        m_group.removeChildNode(&m_records.back()->node);
        m_records.pop_back();
    }
    while (m_records.size() < count) {
        auto added = std::make_unique<LineNode>();
        added->node.setFlag(OwnedByParent, false);
        m_group.appendChildNode(&added->node);
        m_records.push_back(std::move(added));
    }
}

} // namespace tamble::client
