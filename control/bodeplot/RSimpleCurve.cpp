#include "bodeplot/RSimpleCurve.h"

namespace tamble::client {

RSimpleCurve::RSimpleCurve(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
