#include "bodeplot/filters/RBodeplotXOverFilter.h"

namespace tamble::client {

RBodeplotXOverFilter::RBodeplotXOverFilter(QQuickItem *parent)
    : RBodeplotCalculationItem(parent)
{
    connect(this, &QQuickItem::visibleChanged, this, [this] { Q_EMIT visibleChanged(isVisible()); });
}

} // namespace tamble::client
