#pragma once

#include "base/PartComponents.h"

class QQuickItem;

namespace tamble::client {

class FieldEdit;

/// Makes a part of a field, as its child; null outside of QML. In QML the part knows the field by the property `field`,
/// and its conversation, if it asks for it, by `edit`.
QObject *makeFieldPart(Part part, QQuickItem &field, FieldEdit *edit = nullptr);

} // namespace tamble::client
