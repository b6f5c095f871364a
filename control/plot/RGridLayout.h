#pragma once

#include "base/ControlExport.h"
#include "plot/GridLines.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Describes the lines of one direction of a grid: finer lines and major lines over them.
///
/// Positions are 0…1, others are skipped; widths are in pixels. Default: no lines, black, width 1, visible.
class TAMBLE_CLIENT_CONTROL_EXPORT RGridLayout : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RGridLayout)
    /// Places of the lines, 0 to 1: `positions` of the finer ones, `majorPositions` of the major ones over them.
    Q_PROPERTY(QList<double> positions MEMBER m_positions NOTIFY positionsChanged)
    Q_PROPERTY(QList<double> majorPositions MEMBER m_majorPositions NOTIFY majorPositionsChanged)
    /// Colours: `color` of the finer lines, `majorColor` of the major ones.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)
    Q_PROPERTY(QColor majorColor MEMBER m_majorColor NOTIFY majorColorChanged)
    /// Widths in pixels: `lineWidth` of the finer lines, `majorLineWidth` of the major ones.
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY lineWidthChanged)
    Q_PROPERTY(double majorLineWidth MEMBER m_majorLineWidth NOTIFY majorLineWidthChanged)
    /// False draws none of the lines.
    Q_PROPERTY(bool visible MEMBER m_visible NOTIFY visibleChanged)

public:
    explicit RGridLayout(QObject *parent = nullptr);

    /// The present description as one value.
    LineFamily lines() const;

Q_SIGNALS:
    void positionsChanged();
    void majorPositionsChanged();
    void colorChanged();
    void majorColorChanged();
    void lineWidthChanged();
    void majorLineWidthChanged();
    void visibleChanged();
    /// Follows each of the signals above.
    void linesChanged();

private:
    QList<double> m_positions;
    QList<double> m_majorPositions;
    QColor m_color = Qt::black;
    QColor m_majorColor = Qt::black;
    double m_lineWidth = 1.0;
    double m_majorLineWidth = 1.0;
    bool m_visible = true;
};

} // namespace tamble::client
