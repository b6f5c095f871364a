#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "cells/CellMoves.h"
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

/// Places cells by row and column, and moves the current one. Its cells are its children, such as a Repeater makes.
///
/// Keys: arrows move the current cell, with Ctrl to the edge of the table; Home and End lead to the ends of the row,
/// with Ctrl to the first and the last cell. Shift and an arrow extend a `Rectangle`. Ctrl+C copies the selected cells
/// as tab-separated text, Ctrl+V pastes such a text from the current cell on. Tab leaves the table.
class TAMBLE_CLIENT_CONTROL_EXPORT RCellContainerBase : public QQuickItem,
                                                        public SpokenControl,
                                                        public FrozenHeaders,
                                                        private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCellContainerBase)
    Q_PROPERTY(tamble::client::RCellGridPropertiesBase *gridProperties READ gridProperties WRITE setGridProperties
                   NOTIFY gridPropertiesChanged)
    /// How many rows and columns the cells take: `rowCount` and `columnCount`.
    Q_PROPERTY(int rowCount READ rowCount NOTIFY arranged)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY arranged)
    /// Place of the current cell, `currentRow` and `currentColumn`; −1 for none, from which the first arrow leads to
    /// the first cell. Within a cell that spans several it is the place that the user came to.
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)
    Q_PROPERTY(int currentColumn READ currentColumn WRITE setCurrentColumn NOTIFY currentColumnChanged)
    Q_PROPERTY(SelectionMode selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged)
    Q_PROPERTY(QRectF selection READ selection NOTIFY cellsSelected)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /// Whether the columns run from right to left.
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    /// What the table is about, for people who cannot see it.
    Q_PROPERTY(QString title MEMBER m_title NOTIFY titleChanged)
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
    enum SelectionMode : int {
        SingleCell, ///< The current cell alone.
        Row,        ///< The rows of the current cell.
        Rectangle,  ///< From one cell to another; Shift extends it.
    };
    Q_ENUM(SelectionMode)

    explicit RCellContainerBase(QQuickItem *parent = nullptr);
    ~RCellContainerBase() override;

    /// The raster; a container has one of its own by default.
    RCellGridPropertiesBase *gridProperties() const { return m_grid; }
    void setGridProperties(RCellGridPropertiesBase *properties);
    int rowCount() { return plan().rowCount(); }
    int columnCount() { return plan().columnCount(); }
    int currentRow() const { return m_place.row; }
    void setCurrentRow(int row);
    int currentColumn() const { return m_place.column; }
    void setCurrentColumn(int column);
    /// What is selected around the current cell; `SingleCell` by default.
    SelectionMode selectionMode() const { return m_selectionMode; }
    void setSelectionMode(SelectionMode mode);
    /// The selected places: x and y are the first column and row, width and height count them.
    QRectF selection() const;
    /// Whether no cell can be edited; false by default.
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    bool isMirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);
    const QList<qreal> &rowLines() const { return m_rowLines; }
    const QList<qreal> &columnLines() const { return m_columnLines; }
    QRectF headerRowsRect() const;
    QRectF headerColumnsRect() const;
    QPointF headerShift() const;

    /// Copies the selected cells to the clipboard.
    Q_INVOKABLE void copy();
    /// Pastes from the clipboard: one text into all selected cells, several from the current cell on.
    Q_INVOKABLE void paste();

    /// The cells are to be placed anew before the next frame.
    void arrange();
    /// Whether the current cell can be this one.
    bool isReachable(const RCellBase &cell);
    /// A cell has got the focus.
    void makeCurrent(const RCellBase &cell);
    /// The user wants to use a cell.
    void activate(const RCellBase &cell);
    /// Moves the current cell as an arrow key does.
    void step(CellMove move, bool extends = false);

    QAccessible::Role spokenRole() const override { return QAccessible::Table; }
    QString spokenName() const override { return m_title; }
    void addSpokenStates(QAccessible::State &state) const override;

    QMarginsF coveredFor(const QQuickItem &item) const override;

Q_SIGNALS:
    void gridPropertiesChanged();
    /// The cells have been placed.
    void arranged();
    void currentRowChanged();
    void currentColumnChanged();
    void selectionModeChanged();
    void readOnlyChanged();
    void mirroredChanged();
    void titleChanged();
    void ssBackgroundChanged();
    void ssLineHorizontalChanged();
    void ssLineVerticalChanged();
    /// The headers have been placed, as they stay in view.
    void headersMoved();
    /// The user wants to use a cell: by Enter, F2, a double click, or a click on the button in it.
    void cellActivated(int row, int column);
    /// Another place has become the current one.
    void currentChanged(int row, int column);
    /// Other cells are selected: x and y are the first column and row, width and height count them.
    void cellsSelected(const QRectF &cells);
    /// A paste is over: so many texts were taken, so many were not. The cells that took none show why.
    void pasted(int taken, int refused);

protected:
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    enum class Anchor { Moves, Stays };

    void accessibilityActiveChanged(bool active) override;
    const CellPlan &plan();
    void gather();
    void placeCells();
    void placeHeaders();
    void placeLines();
    void warnOfOverlap();
    QRectF rectOf(const CellArea &area) const;
    QSizeF headerSize() const;
    bool isHeaderRow(const CellArea &area) const;
    bool isHeaderColumn(const CellArea &area) const;

    void setPlace(CellPlace place, Anchor anchor);
    void followCurrent();
    void reveal();
    void select();
    CellArea selectedArea();

    enum class Offer { Taken, Refused, Nothing };
    Offer offer(CellPlace place, const QString &text, bool isFilling);
    RCellBase *cellBeginningAt(CellPlace place);

    QPointer<RCellGridPropertiesBase> m_grid;
    EnclosingView m_view;
    std::vector<QPointer<RCellBase>> m_cells;
    CellPlan m_plan; ///< Of those, by the same index; valid unless `m_isStale`.
    CellPlace m_place;
    CellPlace m_anchor; ///< Where the selection began.
    CellArea m_selected;
    QPointer<RCellBase> m_current;
    QList<qreal> m_rowLines;
    QList<qreal> m_columnLines;
    QString m_title;
    QColor m_ssBackground;
    QColor m_ssLineHorizontal;
    QColor m_ssLineVertical;
    SelectionMode m_selectionMode = SingleCell;
    bool m_readOnly = false;
    bool m_mirrored = false;
    bool m_isStale = true;
    bool m_hasWarned = false;
};

} // namespace tamble::client
