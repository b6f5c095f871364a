#pragma once

#include "plot/Plotter.h"

#include <QtCore/QLineF>
#include <QtCore/QList>

namespace tamble::client {

/// Draws full-width horizontal or full-height vertical lines at normalised positions.
class TAMBLE_CLIENT_CONTROL_EXPORT LinePlotter : public tamble::client::Plotter
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLinePlotter)
    Q_PROPERTY(QList<qreal> values READ values WRITE setValues NOTIFY valuesChanged)
    Q_PROPERTY(ORIENTATION orientation READ orientation WRITE setOrientation NOTIFY orientationChanged)
    /// Colour of the lines.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// Width of the lines in pixels; one that is not positive draws nothing.
    Q_PROPERTY(qreal lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)

public:
    enum ORIENTATION : int { Horizontal, Vertical };
    Q_ENUM(ORIENTATION)

    explicit LinePlotter(QQuickItem *parent = nullptr);

    /// Positions of 0…1: from the bottom for horizontal lines, from the left for vertical ones.
    QList<qreal> values() const { return m_values; }
    /// Direction of the lines; default `Horizontal`.
    ORIENTATION orientation() const { return m_orientation; }
    void setOrientation(ORIENTATION orientation);
    void setColor(const QColor &color);
    void setLineWidth(qreal lineWidth);

public Q_SLOTS:
    void setValues(const QList<qreal> &points);

Q_SIGNALS:
    void valuesChanged();
    void orientationChanged();
    void colorChanged();
    void lineWidthChanged();

protected:
    StrokeGeometry thinLines() const override;
    void addWideLines(SmoothStrokeNode &node) const override;

private:
    QList<QLineF> lines() const;

    QList<qreal> m_values;
    ORIENTATION m_orientation = Horizontal;
};

} // namespace tamble::client
