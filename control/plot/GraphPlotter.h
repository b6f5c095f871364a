#pragma once

#include "plot/Plotter.h"

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QVariantList>

namespace tamble::client {

/// Draws one line through a list of normalised points.
class TAMBLE_CLIENT_CONTROL_EXPORT GraphPlotter : public tamble::client::Plotter
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RGraphPlotter)
    Q_PROPERTY(QVariantList values READ values WRITE setValues NOTIFY valuesChanged)
    /// Colour of the line.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// Width of the line in pixels; one that is not positive draws nothing.
    Q_PROPERTY(qreal lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)

public:
    explicit GraphPlotter(QQuickItem *parent = nullptr);

    /// Points of 0…1 of the item's width and height, y downwards; entries that are no points are not drawn.
    QVariantList values() const { return m_values; }
    void setColor(const QColor &color);
    void setLineWidth(qreal lineWidth);

public Q_SLOTS:
    void setValues(const QVariantList &points);

Q_SIGNALS:
    void valuesChanged();
    void colorChanged();
    void lineWidthChanged();

protected:
    StrokeGeometry thinLines() const override;
    void addWideLines(SmoothStrokeNode &node) const override;

private:
    QList<QPointF> pixels() const;

    QVariantList m_values;
};

} // namespace tamble::client
