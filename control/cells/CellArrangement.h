#pragma once

#include "base/ControlExport.h"
#include "cells/CellPlan.h"
#include "cells/RCellGridPropertiesBase.h"
#include "scrolling/EnclosingView.h"
#include "scrolling/FrozenHeaders.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <vector>

namespace tamble::client {

class RCellBase;

/// Places cells by row and column, with lines between them and headers that stay in view. Its cells are its children,
/// such as a Repeater makes.
class TAMBLE_CLIENT_CONTROL_EXPORT CellArrangement : public QQuickItem, public FrozenHeaders
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(tamble::client::RCellGridPropertiesBase *gridProperties READ gridProperties WRITE setGridProperties
                   NOTIFY gridPropertiesChanged)
    /// How many rows and columns the cells take: `rowCount` and `columnCount`.
    Q_PROPERTY(int rowCount READ rowCount NOTIFY arranged)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY arranged)
    /// Whether the columns run from right to left.
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    /// Of the style: `ssBackground` behind the cells, `ssLineHorizontal` and `ssLineVertical` between them.
    Q_PROPERTY(QColor ssBackground MEMBER m_ssBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssLineHorizontal MEMBER m_ssLineHorizontal NOTIFY ssLineHorizontalChanged)
    Q_PROPERTY(QColor ssLineVertical MEMBER m_ssLineVertical NOTIFY ssLineVerticalChanged)
    /// Places of the separating lines, 0 to 1: `rowLines` from the bottom, `columnLines` from the left.
    Q_PROPERTY(QList<qreal> rowLines READ rowLines NOTIFY arranged)
    Q_PROPERTY(QList<qreal> columnLines READ columnLines NOTIFY arranged)
    /// Where the header rows (`headerRowsRect`) and columns (`headerColumnsRect`) are now; empty while they are where
    /// they belong.
    Q_PROPERTY(QRectF headerRowsRect READ headerRowsRect NOTIFY headersMoved)
    Q_PROPERTY(QRectF headerColumnsRect READ headerColumnsRect NOTIFY headersMoved)
    /// How far the headers are from there.
    Q_PROPERTY(QPointF headerShift READ headerShift NOTIFY headersMoved)

public:
    explicit CellArrangement(QQuickItem *parent = nullptr);

    /// The raster; a container has one of its own by default.
    RCellGridPropertiesBase *gridProperties() const { return m_grid; }
    void setGridProperties(RCellGridPropertiesBase *properties);
    int rowCount() { return plan().rowCount(); }
    int columnCount() { return plan().columnCount(); }
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);
    const QList<qreal> &rowLines() const { return m_rowLines; }
    const QList<qreal> &columnLines() const { return m_columnLines; }
    QRectF headerRowsRect() const;
    QRectF headerColumnsRect() const;
    QPointF headerShift() const;

    /// The cells are to be placed anew before the next frame.
    void arrange();
    /// Whether the current cell can be this one.
    bool isReachable(const RCellBase &cell);
    /// The cell whose upper left corner this is; null for none.
    RCellBase *cellBeginningAt(CellPlace place);

    QMarginsF coveredFor(const QQuickItem &item) const override;

Q_SIGNALS:
    void gridPropertiesChanged();
    /// The cells have been placed.
    void arranged();
    void mirroredChanged();
    void ssBackgroundChanged();
    void ssLineHorizontalChanged();
    void ssLineVerticalChanged();
    /// The headers have been placed, as they stay in view.
    void headersMoved();

protected:
    /// Those of plan(), by the same index; cells may go.
    const std::vector<QPointer<RCellBase>> &cells();
    const CellPlan &plan();
    /// The cells have their places, which nobody has been told yet.
    virtual void cellsPlaced() {}
    /// Scrolls so far that a cell is seen.
    void reveal(const RCellBase &cell);

    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    void gather();
    void placeCells();
    void placeHeaders();
    void placeLines();
    void warnOfOverlap();
    QRectF rectOf(const CellArea &area) const;
    QSizeF headerSize() const;
    bool isHeaderRow(const CellArea &area) const;
    bool isHeaderColumn(const CellArea &area) const;

    QPointer<RCellGridPropertiesBase> m_grid;
    EnclosingView m_view;
    std::vector<QPointer<RCellBase>> m_cells;
    CellPlan m_plan; ///< Of those, by the same index; valid unless `m_isStale`.
    QList<qreal> m_rowLines;
    QList<qreal> m_columnLines;
    QColor m_ssBackground;
    QColor m_ssLineHorizontal;
    QColor m_ssLineVertical;
    bool m_mirrored = false;
    bool m_isStale = true;
    bool m_hasWarned = false;
};

} // namespace tamble::client
