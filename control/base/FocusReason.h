#pragma once

class QQuickItem;

namespace tamble::client {

/// Whether it was the mouse that has moved the keyboard focus last in the window of `item`. What it has pressed stays
/// under it then: a view that scrolled there would take the control away between press and release.
bool isFocusByMouse(QQuickItem &item);

} // namespace tamble::client
