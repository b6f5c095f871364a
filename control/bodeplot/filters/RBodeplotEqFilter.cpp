#include "bodeplot/filters/RBodeplotEqFilter.h"

namespace tamble::client {

RBodeplotEqFilter::RBodeplotEqFilter(QQuickItem *parent)
    : RBodeplotCalculationItem(parent)
{
    connect(this, &QQuickItem::visibleChanged, this, [this] { Q_EMIT visibleChanged(isVisible()); });
}

// The base tells that it hides when nothing of this is left.
RBodeplotEqFilter::~RBodeplotEqFilter()
{
    disconnect(this, nullptr, this, nullptr);
}

} // namespace tamble::client
