#pragma once

#include "base/ControlExport.h"
#include "cells/CellTracks.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// The raster of a table, which several tables may share. Sizes are in pixels.
class TAMBLE_CLIENT_CONTROL_EXPORT RCellGridPropertiesBase : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCellGridPropertiesBase)
    /// Sizes of all columns and rows, `columnWidth` and `rowHeight`, but those that have one of their own.
    Q_PROPERTY(qreal columnWidth MEMBER m_columnWidth NOTIFY columnWidthChanged FINAL)
    Q_PROPERTY(qreal rowHeight MEMBER m_rowHeight NOTIFY rowHeightChanged FINAL)
    /// Sizes of single columns and rows, `columnWidths` and `rowHeights`, from the first one on; entries that are not
    /// positive are passed over.
    Q_PROPERTY(QList<qreal> columnWidths MEMBER m_columnWidths NOTIFY columnWidthsChanged FINAL)
    Q_PROPERTY(QList<qreal> rowHeights MEMBER m_rowHeights NOTIFY rowHeightsChanged FINAL)
    /// Between neighbouring cells.
    Q_PROPERTY(qreal spacing MEMBER m_spacing NOTIFY spacingChanged FINAL)
    /// Between the sides of a cell and a text in it.
    Q_PROPERTY(qreal padding MEMBER m_padding NOTIFY paddingChanged FINAL)
    /// How many rows at the top (`headerRows`) and columns at the left (`headerColumns`) name the others: they stay in
    /// view while the page scrolls, and the current cell is never one of theirs. 0 by default.
    Q_PROPERTY(int headerRows MEMBER m_headerRows NOTIFY headerRowsChanged FINAL)
    Q_PROPERTY(int headerColumns MEMBER m_headerColumns NOTIFY headerColumnsChanged FINAL)
    /// Whether lines separate the cells; true by default.
    Q_PROPERTY(bool lineVisible MEMBER m_lineVisible NOTIFY lineVisibleChanged FINAL)
    /// Of the separating lines; 1 by default.
    Q_PROPERTY(qreal lineWidth MEMBER m_lineWidth NOTIFY lineWidthChanged FINAL)

public:
    explicit RCellGridPropertiesBase(QObject *parent = nullptr);

    /// Where a column begins; a negative one counts as the first.
    Q_INVOKABLE qreal columnX(int column) const { return m_columns.start(column); }
    /// Where a row begins; a negative one counts as the first.
    Q_INVOKABLE qreal rowY(int row) const { return m_rows.start(row); }
    /// Width of `count` columns, at least one, with what is between them.
    Q_INVOKABLE qreal spanWidth(int column, int count) const { return m_columns.extent(column, count); }
    /// Height of `count` rows, at least one, with what is between them.
    Q_INVOKABLE qreal spanHeight(int row, int count) const { return m_rows.extent(row, count); }

    qreal spacing() const { return m_spacing; }
    qreal padding() const { return m_padding; }
    int headerRows() const { return m_headerRows; }
    int headerColumns() const { return m_headerColumns; }
    bool lineVisible() const { return m_lineVisible; }

Q_SIGNALS:
    void columnWidthChanged();
    void rowHeightChanged();
    void columnWidthsChanged();
    void rowHeightsChanged();
    void spacingChanged();
    void paddingChanged();
    void headerRowsChanged();
    void headerColumnsChanged();
    void lineVisibleChanged();
    void lineWidthChanged();
    /// Follows each of the signals above.
    void rasterChanged();

private:
    void measure();

    qreal m_columnWidth = 144.0;
    qreal m_rowHeight = 32.0;
    QList<qreal> m_columnWidths;
    QList<qreal> m_rowHeights;
    qreal m_spacing = 1.0;
    qreal m_padding = 4.0;
    qreal m_lineWidth = 1.0;
    int m_headerRows = 0;
    int m_headerColumns = 0;
    bool m_lineVisible = true;
    CellTracks m_columns;
    CellTracks m_rows;
};

} // namespace tamble::client
