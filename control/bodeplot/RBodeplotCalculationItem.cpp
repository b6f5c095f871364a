#include "bodeplot/RBodeplotCalculationItem.h"

namespace tamble::client {

RBodeplotCalculationItem::RBodeplotCalculationItem(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
