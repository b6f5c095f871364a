#include "pointer/RMouseDetection.h"

namespace tamble::client {

RMouseDetection::RMouseDetection(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
