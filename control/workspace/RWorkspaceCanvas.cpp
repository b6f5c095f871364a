#include "workspace/RWorkspaceCanvas.h"

#include "base/PartComponents.h"
#include "plot/LinePlotter.h"
#include "style/StyleSetProps.h"
#include "workspace/PlaneGrid.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include <initializer_list>
#include <utility>

namespace tamble::client {

namespace {

// Order of what lies above the plane. The grid comes before it, at the same height: below 0 the ground would hide it.
constexpr qreal gridLayer = 0.0;
constexpr qreal guideLayer = 1.0;
constexpr qreal bandLayer = 2.0;
constexpr qreal scrollLayer = 3.0;
constexpr qreal focusLayer = 4.0;

// Lines that are this close together must not outshine what stands on them.
constexpr double gridOpacity = 0.35;

// In density-independent units, between an item and the frame of the focus: its own border means something else.
constexpr qreal focusGap = 3.0;

// Of the whole, less than a pixel.
constexpr qreal wholeView = 0.9999;

} // namespace

const std::array<SheetColors::Source, 3> RWorkspaceCanvas::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::lineHorizontal, nullptr, -1, "RBodeplotGrid"},
    {&StyleSetProps::border, nullptr, -1, "RFocusRectangle"},
}};

RWorkspaceCanvas::RWorkspaceCanvas(QQuickItem *parent)
    : WorkspaceBase(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) { onColorsChanged(begin, end); })
{
    setFlag(ItemHasContents);
    for (const auto changed : std::initializer_list<void (WorkspaceBase::*)()>{
             &WorkspaceBase::zoomChanged, &WorkspaceBase::viewXChanged, &WorkspaceBase::viewYChanged,
             &WorkspaceBase::planeRectChanged, &WorkspaceBase::unitChanged, &WorkspaceBase::gridSizeChanged,
             &WorkspaceBase::gridVisibleChanged, &WorkspaceBase::guidesChanged, &WorkspaceBase::currentItemChanged})
        connect(this, changed, this, [this] { polish(); });
    for (const auto changed : {&WorkspaceBase::rubberBandActiveChanged, &WorkspaceBase::rubberBandRectChanged})
        connect(this, changed, this, &RWorkspaceCanvas::showRubberBand);
}

// What the base still says while it goes is not for what is gone already.
RWorkspaceCanvas::~RWorkspaceCanvas()
{
    disconnect(this, nullptr, this, nullptr);
}

void RWorkspaceCanvas::onColorsChanged(std::size_t begin, std::size_t end)
{
    const auto changed = [&](ColorName name) { return begin <= name && end > name; };
    if (changed(Background)) {
        update();
        Q_EMIT ssBackgroundChanged();
    }
    if (changed(GridColor)) {
        polish();
        Q_EMIT ssGridColorChanged();
    }
    if (changed(GuideColor)) {
        polish();
        Q_EMIT ssGuideColorChanged();
    }
}

void RWorkspaceCanvas::Lines::show(QQuickItem &view, const QRectF &area, const QList<double> &fromTop,
                                   const QList<double> &fromLeft)
{
    if (!across) {
        if (fromTop.isEmpty() && fromLeft.isEmpty())
            return;
        across = new LinePlotter(&view);
        down = new LinePlotter(&view);
        down->setOrientation(LinePlotter::Vertical);
        across->stackBefore(view.childItems().first());
        down->stackBefore(view.childItems().first());
    }
    QList<double> fromBottom;
    for (const double place : fromTop)
        fromBottom.append(1.0 - place);
    across->setValues(fromBottom);
    down->setValues(fromLeft);
    for (LinePlotter *lines : {across, down}) {
        lines->setPosition(area.topLeft());
        lines->setSize(area.size());
        lines->setVisible(!lines->values().isEmpty());
    }
}

void RWorkspaceCanvas::Lines::setLook(const QColor &color, double width, double opacity, qreal layer)
{
    if (!across)
        return;
    for (LinePlotter *lines : {across, down}) {
        lines->setOpacity(opacity);
        lines->setColor(color);
        lines->setLineWidth(width);
        lines->setZ(layer);
    }
}

QRectF RWorkspaceCanvas::seenRect() const
{
    return QRectF(viewX(), viewY(), width() / (zoom() * unit()), height() / (zoom() * unit()));
}

void RWorkspaceCanvas::showGrid()
{
    const QRectF area = property("gridVisible").toBool() ? planeRect() & seenRect() : QRectF();
    const double step = shownGridSize(gridSize(), zoom() * unit());
    m_grid.show(*this, QRectF(mapFromPlane(area.topLeft()), mapFromPlane(area.bottomRight())),
                gridPlaces(area.top(), area.bottom(), step), gridPlaces(area.left(), area.right(), step));
    m_grid.setLook(ssGridColor(), 1.0, gridOpacity, gridLayer);
}

void RWorkspaceCanvas::showGuides()
{
    QList<double> fromTop;
    QList<double> fromLeft;
    const QRectF seen = seenRect();
    for (const QVariant &guide : guides()) {
        const QVariantMap line = guide.toMap();
        const double position = line.value(QStringLiteral("position")).toDouble();
        if (line.value(QStringLiteral("orientation")).toInt() == Qt::Horizontal)
            fromTop.append((position - seen.top()) / seen.height());
        else
            fromLeft.append((position - seen.left()) / seen.width());
    }
    m_guides.show(*this, boundingRect(), fromTop, fromLeft);
    m_guides.setLook(ssGuideColor(), unit(), 1.0, guideLayer);
}

void RWorkspaceCanvas::showRubberBand()
{
    if (rubberBandActive() && !m_rubberBand) {
        m_rubberBand = PartComponents::makeItem(Part::RubberBand, *this);
        if (m_rubberBand)
            m_rubberBand->setZ(bandLayer);
    }
    if (!m_rubberBand)
        return;
    m_rubberBand->setProperty("start", mapFromPlane(rubberBandRect().topLeft()));
    m_rubberBand->setProperty("end", mapFromPlane(rubberBandRect().bottomRight()));
    m_rubberBand->setProperty("active", rubberBandActive());
}

// Beyond the plane, what is seen belongs to the whole as well.
QRectF RWorkspaceCanvas::wholeRect() const
{
    return planeRect() | seenRect();
}

void RWorkspaceCanvas::showScrollBars()
{
    const QRectF seen = seenRect();
    const QRectF whole = wholeRect();
    if (seen.isEmpty() || whole.isEmpty())
        return;
    const auto share = [](qreal part) { return part > wholeView ? 1.0 : part; };
    const QRectF span((seen.x() - whole.x()) / whole.width(), (seen.y() - whole.y()) / whole.height(),
                      share(seen.width() / whole.width()), share(seen.height() / whole.height()));
    if (std::exchange(m_scrollSpan, span) != span)
        Q_EMIT scrollSpanChanged();
    if (m_scrollBars || (span.width() >= 1.0 && span.height() >= 1.0))
        return;
    const QVariantMap properties{{QStringLiteral("canvas"), QVariant::fromValue<QObject *>(this)}};
    m_scrollBars = PartComponents::makeItem(Part::WorkspaceScrollBars, *this, properties);
    if (m_scrollBars)
        m_scrollBars->setZ(scrollLayer);
}

void RWorkspaceCanvas::scrollHorizontally(double place)
{
    setViewX(wholeRect().x() + place * wholeRect().width());
}

void RWorkspaceCanvas::scrollVertically(double place)
{
    setViewY(wholeRect().y() + place * wholeRect().height());
}

// Around the item that keys act on, or else around all; as wide at any zoom, and in front of the items beside it.
void RWorkspaceCanvas::showFocus()
{
    if (hasActiveFocus() && !m_focusPlace) {
        m_focusPlace = new QQuickItem(this);
        m_focusPlace->setZ(focusLayer);
        PartComponents::makeItem(Part::FocusFrame, *m_focusPlace);
    }
    if (!m_focusPlace)
        return;
    m_focusPlace->setVisible(hasActiveFocus());
    QRectF place = boundingRect();
    if (const auto *item = static_cast<WorkspaceItemBase *>(currentItem())) {
        const QRectF rect = item->planeRect();
        const qreal gap = focusGap * unit();
        place = QRectF(mapFromPlane(rect.topLeft()), mapFromPlane(rect.bottomRight())).adjusted(-gap, -gap, gap, gap);
    }
    m_focusPlace->setPosition(place.topLeft());
    m_focusPlace->setSize(place.size());
}

void RWorkspaceCanvas::componentComplete()
{
    WorkspaceBase::componentComplete();
    polish();
}

void RWorkspaceCanvas::itemChange(ItemChange change, const ItemChangeData &data)
{
    WorkspaceBase::itemChange(change, data);
    if (change == ItemActiveFocusHasChanged)
        polish();
}

void RWorkspaceCanvas::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    WorkspaceBase::geometryChange(newGeometry, oldGeometry);
    polish();
    update();
}

void RWorkspaceCanvas::updatePolish()
{
    WorkspaceBase::updatePolish();
    if (width() <= 0.0 || height() <= 0.0)
        return;
    showGrid();
    showGuides();
    showScrollBars();
    showFocus();
}

QSGNode *RWorkspaceCanvas::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGRectangleNode *>(oldNode);
    if (!node)
        node = window()->createRectangleNode();
    node->setRect(boundingRect());
    node->setColor(ssBackground());
    return node;
}

} // namespace tamble::client
