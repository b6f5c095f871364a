#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "cells/CellArrangement.h"
#include "cells/CellMoves.h"

#include <QtCore/QPointer>

namespace tamble::client {

/// A table of cells with a current one, and what is selected around it.
///
/// Keys: arrows move the current cell, with Ctrl to the edge of the table; Home and End lead to the ends of the row,
/// with Ctrl to the first and the last cell. Shift and an arrow extend a `Rectangle`. Ctrl+C copies the selected cells
/// as tab-separated text, Ctrl+V pastes such a text from the current cell on. Tab leaves the table.
class TAMBLE_CLIENT_CONTROL_EXPORT RCellContainerBase : public tamble::client::CellArrangement,
                                                        public SpokenControl,
                                                        private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCellContainerBase)
    /// Place of the current cell, `currentRow` and `currentColumn`; −1 for none, from which the first arrow leads to
    /// the first cell. Within a cell that spans several it is the place that the user came to.
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)
    Q_PROPERTY(int currentColumn READ currentColumn WRITE setCurrentColumn NOTIFY currentColumnChanged)
    Q_PROPERTY(SelectionMode selectionMode READ selectionMode WRITE setSelectionMode NOTIFY selectionModeChanged)
    Q_PROPERTY(QRectF selection READ selection NOTIFY cellsSelected)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /// What the table is about, for people who cannot see it.
    Q_PROPERTY(QString title MEMBER m_title NOTIFY titleChanged)

public:
    enum SelectionMode : int {
        SingleCell, ///< The current cell alone.
        Row,        ///< The rows of the current cell.
        Rectangle,  ///< From one cell to another; Shift extends it.
    };
    Q_ENUM(SelectionMode)

    explicit RCellContainerBase(QQuickItem *parent = nullptr);
    ~RCellContainerBase() override;

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
    /// Copies the selected cells to the clipboard.
    Q_INVOKABLE void copy();
    /// Pastes from the clipboard: one text into all selected cells, several from the current cell on.
    Q_INVOKABLE void paste();

    /// A cell has got the focus.
    void makeCurrent(const RCellBase &cell);
    /// The user wants to use a cell.
    void activate(const RCellBase &cell);
    /// Moves the current cell as an arrow key does.
    void step(CellMove move, bool extends = false);

    QAccessible::Role spokenRole() const override { return QAccessible::Table; }
    QString spokenName() const override { return m_title; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void currentRowChanged();
    void currentColumnChanged();
    void selectionModeChanged();
    void readOnlyChanged();
    void titleChanged();
    /// The user wants to use a cell: by Enter, F2, a double click, or a click on the button in it.
    void cellActivated(int row, int column);
    /// Another place has become the current one.
    void currentChanged(int row, int column);
    /// Other cells are selected: x and y are the first column and row, width and height count them.
    void cellsSelected(const QRectF &cells);
    /// A paste is over: so many texts were taken, so many were not. The cells that took none show why.
    void pasted(int taken, int refused);

protected:
    void componentComplete() override;
    void cellsPlaced() override;
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Anchor { Moves, Stays };

    void accessibilityActiveChanged(bool active) override;
    void setPlace(CellPlace place, Anchor anchor);
    void followCurrent();
    void revealCurrent();
    void select();
    CellArea selectedArea();

    CellPlace m_place;
    CellPlace m_anchor; ///< Where the selection began.
    CellArea m_selected;
    QPointer<RCellBase> m_current;
    QString m_title;
    SelectionMode m_selectionMode = SingleCell;
    bool m_readOnly = false;
};

} // namespace tamble::client
