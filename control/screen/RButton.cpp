#include "screen/RButton.h"

namespace tamble::client {

RButton::RButton(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
