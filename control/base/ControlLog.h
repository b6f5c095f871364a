#pragma once

#include <QtCore/QLoggingCategory>

namespace tamble::client {

/// "tamble.control": what the controls warn of. The style system has a category of its own.
Q_DECLARE_LOGGING_CATEGORY(controlLog)

/// Warns of what a page does wrong with `object`, behind the place in the page that made it. Hosts get it by the signal
/// `warnings` of the engine, too.
void warnOfPage(const QObject *object, const QString &text);

} // namespace tamble::client
