#include "bodeplot/RBodeplotGrid.h"

namespace tamble::client {

RBodeplotGrid::RBodeplotGrid(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
