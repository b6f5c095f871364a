#pragma once

#include <QtCore/QLoggingCategory>

namespace tamble::client {

/// "tamble.control": what the controls warn of. The style system has a category of its own.
Q_DECLARE_LOGGING_CATEGORY(controlLog)

} // namespace tamble::client
