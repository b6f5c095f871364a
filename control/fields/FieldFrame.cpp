#include "fields/FieldFrame.h"

#include <utility>

namespace tamble::client {

FieldFrame::FieldFrame(QQuickItem *parent)
    : QQuickRectangle(parent)
    , m_line(new QQuickRectangle(this))
{}

void FieldFrame::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    placeLine();
    updateBorder();
    Q_EMIT unitChanged();
}

void FieldFrame::setFocused(bool focused)
{
    if (std::exchange(m_isFocused, focused) == focused)
        return;
    placeLine();
    updateBorder();
    Q_EMIT focusedChanged();
}

QColor FieldFrame::lineColor() const
{
    return m_line->color();
}

void FieldFrame::setLineColor(const QColor &color)
{
    if (m_line->color() == color)
        return;
    m_line->setColor(color);
    Q_EMIT lineColorChanged();
}

void FieldFrame::setBorderColor(const QColor &color)
{
    if (std::exchange(m_borderColor, color) == color)
        return;
    updateBorder();
    Q_EMIT borderColorChanged();
}

void FieldFrame::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickRectangle::geometryChange(newGeometry, oldGeometry);
    placeLine();
}

void FieldFrame::placeLine()
{
    const qreal thickness = (m_isFocused ? 2.0 : 1.0) * m_unit;
    m_line->setY(height() - thickness);
    m_line->setSize({width(), thickness});
}

// A pen of Qt's is made at the first touch; most fields never have the focus.
void FieldFrame::updateBorder()
{
    const bool isShown = m_isFocused && m_borderColor.alpha() > 0;
    if (!isShown && !m_hasPen)
        return;
    m_hasPen = true;
    border()->setColor(m_borderColor);
    border()->setWidth(isShown ? m_unit : 0.0);
}

} // namespace tamble::client
