#include "bodeplot/filters/RBodeplotAsymmetricEqFilter.h"

namespace tamble::client {

RBodeplotAsymmetricEqFilter::RBodeplotAsymmetricEqFilter(QQuickItem *parent)
    : RBodeplotCalculationItem(parent)
{
    connect(this, &QQuickItem::visibleChanged, this, [this] { Q_EMIT visibleChanged(isVisible()); });
}

} // namespace tamble::client
