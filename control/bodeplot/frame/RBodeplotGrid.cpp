#include "bodeplot/frame/RBodeplotGrid.h"

#include "base/ControlLog.h"
#include "base/StyleObject.h"
#include "bodeplot/frame/FrameGridLines.h"
#include "scenegraph/SoftwarePicture.h"
#include "scenegraph/StrokeNode.h"

#include <QtCore/QDebug>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

namespace {

constexpr float faintOpacity = 0.4f;

QColor fainter(QColor color)
{
    color.setAlphaF(color.alphaF() * faintOpacity);
    return color;
}

} // namespace

RBodeplotGrid::RBodeplotGrid(QQuickItem *parent)
    : FrameItem(parent)
{
    for (const auto signal :
         {&RBodeplotGrid::xIncrementChanged, &RBodeplotGrid::yIncrementChanged, &RBodeplotGrid::xAxisScaleChanged,
          &RBodeplotGrid::yAxisScaleChanged, &RBodeplotGrid::xAxisTickValuesChanged,
          &RBodeplotGrid::yAxisTickValuesChanged, &RBodeplotGrid::dedicatedXAxisLineChanged})
        connect(this, signal, this, &RBodeplotGrid::onFrameChanged);
    for (const auto signal : {&RBodeplotGrid::yMinimumChanged, &RBodeplotGrid::yMaximumChanged})
        connect(this, signal, this, &RBodeplotGrid::warnWithoutZero);
}

void RBodeplotGrid::componentComplete()
{
    FrameItem::componentComplete();
    warnWithoutZero();
    polish();
}

void RBodeplotGrid::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    FrameItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.height() != oldGeometry.height())
        warnWithoutZero();
}

void RBodeplotGrid::updatePolish()
{
    const LineKinds before = m_kinds;
    readStyle();
    if (std::exchange(m_linesStale, false))
        computeLines();
    if (m_kinds != before)
        update();
}

QSGNode *RBodeplotGrid::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) { return updateLines(old); });
}

QSGNode *RBodeplotGrid::updateLines(QSGNode *oldNode) const
{
    QSGNode *root = oldNode ? oldNode : new QSGNode;
    while (root->childCount() < KindCount)
        root->appendChildNode(new StrokeNode);
    auto *node = static_cast<StrokeNode *>(root->firstChild());
    for (const LineKind &kind : m_kinds) {
        node->setColor(kind.color);
        node->setStroke(showsColor(kind.color) ? kind.lines : StrokeGeometry());
        node = static_cast<StrokeNode *>(node->nextSibling());
    }
    return root;
}

void RBodeplotGrid::onFrameChanged()
{
    m_linesStale = true;
    polish();
}

void RBodeplotGrid::warnWithoutZero() const
{
    // While the component is being built, its bounds come one by one.
    if (m_dedicatedXAxisLine && isComponentComplete() && !showsZero())
        qCWarning(controlLog,
                  "RBodeplotGrid::onHeightChanged() dedicated x axis line enabled but 0 is not between yMin and yMax");
}

bool RBodeplotGrid::showsZero() const
{
    const AxisRange levels = axes().y;
    return levels.isShowable() && levels.contains(0.0);
}

PlotAxes RBodeplotGrid::axes() const
{
    return axesOf(axisScale(m_xAxisScale), axisScale(m_yAxisScale));
}

void RBodeplotGrid::readStyle()
{
    const LineWidths widths{styleWidth(style(), "lineWidthVertical"), styleWidth(style(), "lineWidthHorizontal"),
                            styleWidth(style(), "lineWidthXAchsis")};
    m_linesStale = m_linesStale || widths != m_widths;
    m_widths = widths;
    m_kinds[Vertical].color = styleColor(style(), "lineColorVertical");
    m_kinds[Horizontal].color = styleColor(style(), "lineColorHorizontal");
    m_kinds[ZeroLine].color = styleColor(style(), "lineColorXAchsis");
    m_kinds[FaintVertical].color = fainter(m_kinds[Vertical].color);
    m_kinds[FaintHorizontal].color = fainter(m_kinds[Horizontal].color);
}

void RBodeplotGrid::computeLines()
{
    const auto [frequencies, levels] = axes();
    const GridPlaces vertical = gridPlaces(frequencies, m_xIncrement, TickChoice(m_xAxisTickValues));
    const GridPlaces horizontal = gridPlaces(levels, m_yIncrement, TickChoice(m_yAxisTickValues));
    const QList<double> zero = m_dedicatedXAxisLine && showsZero() ? QList{levels.place(0.0)} : QList<double>();

    const GridCanvas canvas{size(), window() ? window()->effectiveDevicePixelRatio() : 1.0};
    m_kinds[Vertical].lines = crispLines(vertical.full, Qt::Vertical, canvas, m_widths.vertical);
    m_kinds[FaintVertical].lines = crispLines(vertical.faint, Qt::Vertical, canvas, m_widths.vertical);
    m_kinds[Horizontal].lines = crispLines(horizontal.full, Qt::Horizontal, canvas, m_widths.horizontal);
    m_kinds[FaintHorizontal].lines = crispLines(horizontal.faint, Qt::Horizontal, canvas, m_widths.horizontal);
    m_kinds[ZeroLine].lines = crispLines(zero, Qt::Horizontal, canvas, m_widths.zeroLine);

    const bool tooMany =
        vertical.problem == TickProblem::TooManyTicks || horizontal.problem == TickProblem::TooManyTicks;
    if (tooMany && !m_tooManyLinesReported)
        qCWarning(controlLog, "RBodeplotGrid::computeLines() more than 1000 lines");
    m_tooManyLinesReported = tooMany;
}

} // namespace tamble::client
