#include "fields/RComboBoxIndicator.h"

#include "controls/RTintedImage.h"

#include <utility>

namespace tamble::client {

RComboBoxIndicator::RComboBoxIndicator(QQuickItem *parent)
    : QQuickRectangle(parent)
    , m_arrow(new RTintedImage(this))
{}

void RComboBoxIndicator::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    m_arrow->setEnlargement(unit);
    m_arrow->setSource(QUrl(QStringLiteral("qrc:/icons/chevron-down_16x16.png")));
    m_arrow->setSize({16.0 * unit, 16.0 * unit});
    setY(unit);
    setWidth(31.0 * unit);
    Q_EMIT unitChanged();
}

QColor RComboBoxIndicator::arrowColor() const
{
    return m_arrow->tint();
}

void RComboBoxIndicator::setArrowColor(const QColor &color)
{
    if (m_arrow->tint() == color)
        return;
    m_arrow->setTint(color);
    Q_EMIT arrowColorChanged();
}

void RComboBoxIndicator::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickRectangle::geometryChange(newGeometry, oldGeometry);
    // On whole pixels, as anchors would have it.
    m_arrow->setPosition({qRound((newGeometry.width() - m_arrow->width()) / 2.0) * 1.0,
                          qRound((newGeometry.height() - m_arrow->height()) / 2.0) * 1.0});
}

} // namespace tamble::client
