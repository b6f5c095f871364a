#include "bodeplot/RLimiterCurve.h"

namespace tamble::client {

RLimiterCurve::RLimiterCurve(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
