#include "bodeplot/filters/RBodeplotEqFilter.h"

namespace tamble::client {

RBodeplotEqFilter::RBodeplotEqFilter(QQuickItem *parent)
    : RBodeplotCalculationItem(parent)
{
    connect(this, &QQuickItem::visibleChanged, this, [this] { Q_EMIT visibleChanged(isVisible()); });
}

} // namespace tamble::client
