#include "pointer/RMouseCursor.h"

namespace tamble::client {

RMouseCursor::RMouseCursor(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
