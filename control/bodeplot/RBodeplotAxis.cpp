#include "bodeplot/RBodeplotAxis.h"

namespace tamble::client {

RBodeplotAxis::RBodeplotAxis(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
