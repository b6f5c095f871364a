#include "cells/CellArrangement.h"

#include "base/ControlLog.h"
#include "cells/RCellBase.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

// Header cells lie above the others, on stripes between the two; those of the corner above them, on one of their own.
constexpr double headerZ = 2.0;
constexpr double cornerZ = 4.0;

/// Middles of the gaps between tracks, as fractions of all their length.
template <typename Start>
QList<qreal> gaps(int count, double spacing, double length, Start start)
{
    QList<qreal> fractions;
    for (int i = 1; i < count && length > 0.0; ++i)
        fractions.append((start(i) - spacing / 2.0) / length);
    return fractions;
}

void turn(QList<qreal> &fractions)
{
    for (qreal &fraction : fractions)
        fraction = 1.0 - fraction;
}

} // namespace

CellArrangement::CellArrangement(QQuickItem *parent)
    : QQuickItem(parent)
    , m_view(this)
{
    connect(&m_view, &EnclosingView::scrolled, this, &CellArrangement::placeHeaders);
    connect(this, &CellArrangement::ssBackgroundChanged, this, &CellArrangement::arrange);
}

void CellArrangement::setGridProperties(RCellGridPropertiesBase *properties)
{
    if (m_grid == properties)
        return;
    if (m_grid)
        m_grid->disconnect(this);
    m_grid = properties;
    if (properties)
        connect(properties, &RCellGridPropertiesBase::rasterChanged, this, &CellArrangement::arrange);
    arrange();
    Q_EMIT gridPropertiesChanged();
}

void CellArrangement::setMirrored(bool mirrored)
{
    if (std::exchange(m_mirrored, mirrored) == mirrored)
        return;
    arrange();
    Q_EMIT mirroredChanged();
}

void CellArrangement::arrange()
{
    m_isStale = true;
    polish();
}

const CellPlan &CellArrangement::plan()
{
    if (m_isStale)
        gather();
    return m_plan;
}

void CellArrangement::gather()
{
    m_isStale = false;
    m_cells.clear();
    std::vector<CellPlan::Cell> planned;
    for (QQuickItem *child : childItems()) {
        auto *cell = qobject_cast<RCellBase *>(child);
        if (!cell)
            continue;
        const CellArea area = cell->area();
        const bool isOpen = cell->isSelectable() && cell->isVisible() && cell->isEnabled();
        planned.push_back({area, isOpen && !isHeaderRow(area) && !isHeaderColumn(area)});
        m_cells.emplace_back(cell);
    }
    m_plan = CellPlan(std::move(planned));
}

void CellArrangement::updatePolish()
{
    if (!m_grid)
        return;
    m_view.find();
    const CellPlan &plan = this->plan();
    setImplicitSize(plan.columnCount() > 0 ? m_grid->spanWidth(0, plan.columnCount()) : 0.0,
                    plan.rowCount() > 0 ? m_grid->spanHeight(0, plan.rowCount()) : 0.0);
    warnOfOverlap();
    placeLines();
    placeCells();
    const QPointer<CellArrangement> guard(this);
    cellsPlaced();
    if (guard)
        Q_EMIT arranged();
    if (guard)
        Q_EMIT headersMoved();
}

// Over a copy, since a page may answer a new size with other cells.
void CellArrangement::placeCells()
{
    for (const auto &cell : std::vector(m_cells)) {
        if (!cell)
            continue;
        const CellArea area = cell->area();
        cell->setGround(area.rows > 1 || area.columns > 1 ? m_ssBackground : QColor());
        if (isHeaderRow(area) || isHeaderColumn(area))
            cell->setZ(isHeaderRow(area) && isHeaderColumn(area) ? cornerZ : headerZ);
        const QRectF rect = rectOf(area);
        cell->setPosition(rect.topLeft());
        cell->setSize(rect.size());
    }
}

void CellArrangement::placeHeaders()
{
    if (!m_grid || (m_grid->headerRows() <= 0 && m_grid->headerColumns() <= 0))
        return;
    for (const auto &cell : std::vector(m_cells)) {
        if (cell && (isHeaderRow(cell->area()) || isHeaderColumn(cell->area())))
            cell->setPosition(rectOf(cell->area()).topLeft());
    }
    Q_EMIT headersMoved();
}

void CellArrangement::placeLines()
{
    m_rowLines.clear();
    m_columnLines.clear();
    if (!m_grid->lineVisible())
        return;
    m_columnLines = gaps(m_plan.columnCount(), m_grid->spacing(), implicitWidth(),
                         [this](int column) { return m_grid->columnX(column); });
    m_rowLines =
        gaps(m_plan.rowCount(), m_grid->spacing(), implicitHeight(), [this](int row) { return m_grid->rowY(row); });
    turn(m_rowLines);
    if (m_mirrored)
        turn(m_columnLines);
}

void CellArrangement::warnOfOverlap()
{
    if (m_hasWarned)
        return;
    const auto overlap = m_plan.overlap();
    m_hasWarned = overlap.has_value();
    if (overlap)
        qCWarning(controlLog, "WARN: RCellContainer overlapping cells at %d %d", overlap->row, overlap->column);
}

bool CellArrangement::isHeaderRow(const CellArea &area) const
{
    return m_grid && area.row < m_grid->headerRows();
}

bool CellArrangement::isHeaderColumn(const CellArea &area) const
{
    return m_grid && area.column < m_grid->headerColumns();
}

QRectF CellArrangement::rectOf(const CellArea &area) const
{
    QRectF rect(m_grid->columnX(area.column), m_grid->rowY(area.row), m_grid->spanWidth(area.column, area.columns),
                m_grid->spanHeight(area.row, area.rows));
    if (m_mirrored)
        rect.moveLeft(implicitWidth() - rect.right());
    const QPointF shift = headerShift();
    return rect.translated(isHeaderColumn(area) ? shift.x() : 0.0, isHeaderRow(area) ? shift.y() : 0.0);
}

/// The header rows' height and the header columns' width.
QSizeF CellArrangement::headerSize() const
{
    const int rows = m_grid ? m_grid->headerRows() : 0;
    const int columns = m_grid ? m_grid->headerColumns() : 0;
    return {columns > 0 ? m_grid->columnX(columns) : 0.0, rows > 0 ? m_grid->rowY(rows) : 0.0};
}

/// A header covers other cells, not itself.
QMarginsF CellArrangement::coveredFor(const QQuickItem &item) const
{
    const QQuickItem *child = &item;
    while (child && child->parentItem() != this)
        child = child->parentItem();
    const auto *cell = qobject_cast<const RCellBase *>(child);
    if (!cell)
        return {};
    const double top = isHeaderRow(cell->area()) ? 0.0 : headerSize().height();
    const double aside = isHeaderColumn(cell->area()) ? 0.0 : headerSize().width();
    return {m_mirrored ? 0.0 : aside, top, m_mirrored ? aside : 0.0, 0.0};
}

QPointF CellArrangement::headerShift() const
{
    const QSizeF header = headerSize();
    if (header.isNull())
        return {};
    const QRectF visible = m_view.visibleRect();
    const double hiddenAside = m_mirrored ? implicitWidth() - visible.right() : visible.left();
    const double x = std::clamp(hiddenAside, 0.0, std::max(0.0, implicitWidth() - header.width()));
    const double y = std::clamp(visible.top(), 0.0, std::max(0.0, implicitHeight() - header.height()));
    return {m_mirrored ? -x : x, y};
}

QRectF CellArrangement::headerRowsRect() const
{
    const QPointF shift = headerShift();
    return shift.isNull() ? QRectF() : QRectF(0.0, shift.y(), implicitWidth(), headerSize().height());
}

QRectF CellArrangement::headerColumnsRect() const
{
    const QPointF shift = headerShift();
    const double width = headerSize().width();
    const double home = m_mirrored ? implicitWidth() - width : 0.0;
    return shift.isNull() ? QRectF() : QRectF(home + shift.x(), 0.0, width, implicitHeight());
}

void CellArrangement::componentComplete()
{
    QQuickItem::componentComplete();
    updatePolish();
}

void CellArrangement::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    placeHeaders();
}

void CellArrangement::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    switch (change) {
    case ItemChildAddedChange:
    case ItemChildRemovedChange:
    case ItemParentHasChanged:
    case ItemSceneChange:
        arrange();
        break;
    default:
        break;
    }
}

bool CellArrangement::isReachable(const RCellBase &cell)
{
    const CellPlan &plan = this->plan();
    const auto found = std::ranges::find(m_cells, &cell);
    return found != m_cells.end() && plan.cells()[std::size_t(found - m_cells.begin())].isReachable;
}

RCellBase *CellArrangement::cellBeginningAt(CellPlace place)
{
    const int index = plan().cellAt(place);
    if (index < 0 || m_plan.cells()[std::size_t(index)].area.place() != place)
        return nullptr;
    return m_cells[std::size_t(index)];
}

const std::vector<QPointer<RCellBase>> &CellArrangement::cells()
{
    plan();
    return m_cells;
}

void CellArrangement::reveal(const RCellBase &cell)
{
    m_view.find();
    m_view.reveal({cell.position(), cell.size()}, coveredFor(cell));
}

} // namespace tamble::client
