#include "bodeplot/filters/RBodeplotFIRFilter.h"

namespace tamble::client {

RBodeplotFIRFilter::RBodeplotFIRFilter(QQuickItem *parent)
    : RBodeplotCalculationItem(parent)
    , m_coefficients(m_order, 0.0)
{
    m_coefficients.first() = 1.0;
    connect(this, &QQuickItem::visibleChanged, this, [this] { Q_EMIT visibleChanged(isVisible()); });
}

} // namespace tamble::client
