#include "cells/PlacedCell.h"

#include "cells/RCellContainerBase.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include <utility>

namespace tamble::client {

PlacedCell::PlacedCell(QQuickItem *parent)
    : QQuickItem(parent)
{}

void PlacedCell::setRow(int row)
{
    place(m_row, row, &PlacedCell::rowChanged);
}

void PlacedCell::setColumn(int column)
{
    place(m_column, column, &PlacedCell::columnChanged);
}

void PlacedCell::setRowSpan(int span)
{
    place(m_rowSpan, span, &PlacedCell::rowSpanChanged);
}

void PlacedCell::setColumnSpan(int span)
{
    place(m_columnSpan, span, &PlacedCell::columnSpanChanged);
}

void PlacedCell::place(int &part, int value, void (PlacedCell::*changed)())
{
    if (std::exchange(part, value) == value)
        return;
    followRaster();
    Q_EMIT(this->*changed)();
}

RCellGridPropertiesBase *PlacedCell::gridProperties() const
{
    return m_ownGrid || !m_container ? m_ownGrid.get() : m_container->gridProperties();
}

void PlacedCell::setGridProperties(RCellGridPropertiesBase *properties)
{
    if (m_ownGrid == properties)
        return;
    if (m_ownGrid)
        m_ownGrid->disconnect(this);
    m_ownGrid = properties;
    if (properties)
        connect(properties, &RCellGridPropertiesBase::rasterChanged, this, &PlacedCell::followRaster);
    followRaster();
    Q_EMIT gridPropertiesChanged();
}

void PlacedCell::setSelectable(bool selectable)
{
    if (std::exchange(m_selectable, selectable) == selectable)
        return;
    if (m_container)
        m_container->arrange();
    Q_EMIT selectableChanged();
}

void PlacedCell::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    followRaster();
    Q_EMIT unitChanged();
}

void PlacedCell::setContainer(RCellContainerBase *container)
{
    if (m_container == container)
        return;
    if (m_container)
        disconnect(m_container);
    m_container = container;
    followRaster();
    Q_EMIT gridPropertiesChanged();
    containerChange();
}

void PlacedCell::setGround(const QColor &ground)
{
    if (std::exchange(m_ground, ground) == ground)
        return;
    setFlag(ItemHasContents, ground.isValid());
    update();
}

QSGNode *PlacedCell::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGRectangleNode *>(oldNode);
    if (!m_ground.isValid()) {
        delete node;
        return nullptr;
    }
    if (!node)
        node = window()->createRectangleNode();
    node->setRect(boundingRect());
    node->setColor(m_ground);
    return node;
}

void PlacedCell::followRaster()
{
    if (!isComponentComplete())
        return;
    if (const RCellGridPropertiesBase *grid = gridProperties()) {
        const CellArea taken = area();
        setImplicitSize(grid->spanWidth(taken.column, taken.columns), grid->spanHeight(taken.row, taken.rows));
    } else {
        setImplicitSize(144.0 * m_unit, 32.0 * m_unit);
    }
    contentMove();
    if (m_container)
        m_container->arrange();
}

void PlacedCell::componentComplete()
{
    QQuickItem::componentComplete();
    followRaster();
}

void PlacedCell::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        contentMove();
}

void PlacedCell::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        setContainer(qobject_cast<RCellContainerBase *>(data.item));
    else if ((change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) && m_container)
        m_container->arrange();
}

} // namespace tamble::client
