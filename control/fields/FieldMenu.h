#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointF>

#include <optional>

class QQuickItem;

namespace tamble::client {

/// Opens the context menu of a text field: beside the point of it that was pressed, or for a key below the caret.
///
/// `editor` has the members of TextInput or TextEdit. Its selection stays visible while the menu is open, and the focus
/// comes back to it before the chosen entry acts. The menu is made for the occasion.
TAMBLE_CLIENT_CONTROL_EXPORT void openFieldMenu(QQuickItem *editor, std::optional<QPointF> pressed = std::nullopt);

} // namespace tamble::client
