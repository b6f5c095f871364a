#pragma once

#include "base/ControlExport.h"
#include "cells/CellPlan.h"
#include "cells/RCellGridPropertiesBase.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class RCellContainerBase;

/// The place of a cell in a table's raster, the size that follows from it, and the ground behind the cell.
class TAMBLE_CLIENT_CONTROL_EXPORT PlacedCell : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Place of the cell's upper left corner, `row` and `column`, counted from 0; negative ones count as 0.
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY rowChanged)
    Q_PROPERTY(int column READ column WRITE setColumn NOTIFY columnChanged)
    /// How many rows (`rowSpan`) and columns (`columnSpan`) the cell takes; 1 by default.
    Q_PROPERTY(int rowSpan READ rowSpan WRITE setRowSpan NOTIFY rowSpanChanged)
    Q_PROPERTY(int columnSpan READ columnSpan WRITE setColumnSpan NOTIFY columnSpanChanged)
    Q_PROPERTY(tamble::client::RCellGridPropertiesBase *gridProperties READ gridProperties WRITE setGridProperties
                   NOTIFY gridPropertiesChanged)
    /// Whether a selection of the container takes the cell in; true by default.
    Q_PROPERTY(bool selectable READ isSelectable WRITE setSelectable NOTIFY selectableChanged)
    /// Pixels per density-independent unit, for the size of a cell without `gridProperties`.
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged)

public:
    explicit PlacedCell(QQuickItem *parent = nullptr);

    int row() const { return m_row; }
    void setRow(int row);
    int column() const { return m_column; }
    void setColumn(int column);
    int rowSpan() const { return m_rowSpan; }
    void setRowSpan(int span);
    int columnSpan() const { return m_columnSpan; }
    void setColumnSpan(int span);
    /// The raster: the container's, unless the cell has one of its own.
    RCellGridPropertiesBase *gridProperties() const;
    void setGridProperties(RCellGridPropertiesBase *properties);
    bool isSelectable() const { return m_selectable; }
    void setSelectable(bool selectable);
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);

    CellArea area() const { return CellArea::ofCell(m_row, m_column, m_rowSpan, m_columnSpan); }

    // What the container says.
    /// The cell is a child of this table, or of none.
    void setContainer(RCellContainerBase *container);
    /// What is behind the cell, where lines must not cross it; an invalid colour for nothing.
    void setGround(const QColor &ground);

Q_SIGNALS:
    void rowChanged();
    void columnChanged();
    void rowSpanChanged();
    void columnSpanChanged();
    void gridPropertiesChanged();
    void selectableChanged();
    void unitChanged();

protected:
    /// Null outside of a container.
    RCellContainerBase *container() const { return m_container; }
    virtual void containerChange() {}
    /// What the cell holds has another place.
    virtual void contentMove() {}
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void place(int &part, int value, void (PlacedCell::*changed)());
    void followRaster();

    int m_row = 0;
    int m_column = 0;
    int m_rowSpan = 1;
    int m_columnSpan = 1;
    qreal m_unit = 1.0;
    QPointer<RCellContainerBase> m_container;
    QPointer<RCellGridPropertiesBase> m_ownGrid;
    QColor m_ground;
    bool m_selectable = true;
};

} // namespace tamble::client
