#pragma once

class QQuickItem;

namespace tamble::client {

class FieldEdit;

/// The first field below `body`, in the order of Tab, that can be typed into; null for none.
FieldEdit *firstField(const QQuickItem &body);

/// Enters what is typed below `body`, as far as the first field whose text is not acceptable, and gives that one; null
/// when all are entered.
FieldEdit *enterFields(const QQuickItem &body);

/// Takes back what is typed below `body` and not entered.
void cancelFields(const QQuickItem &body);

} // namespace tamble::client
