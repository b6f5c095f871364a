#pragma once

#include <QtGui/QKeyEvent>
#include <QtGui/QPointingDevice>

namespace tamble::client {

/// How long, in ms, a finger rests until it asks for what a right click does.
constexpr int longPressMs = 500;

/// Whether a finger does it; what Qt makes of a touch for items that know only the mouse included.
inline bool isByFinger(const QPointerEvent &event)
{
    return event.pointerType() == QPointingDevice::PointerType::Finger;
}

inline bool isEnterKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
}

/// Whether a key opens the context menu: the Menu key or Shift+F10.
inline bool asksForMenu(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace tamble::client
