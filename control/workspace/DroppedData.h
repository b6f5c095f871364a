#pragma once

#include <QtCore/QVariant>

class QMimeData;

namespace tamble::client {

/// The item that is dragged within the application, or else what another one has put into the drag: its addresses, its
/// text, or all of its formats by name.
QVariant droppedData(const QMimeData &data);

} // namespace tamble::client
