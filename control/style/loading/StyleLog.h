#pragma once

#include <QtCore/QLoggingCategory>

namespace tamble::client {

/// "tamble.style": what the style system says. Warnings and worse by default; the rest with
/// QT_LOGGING_RULES="tamble.style*=true".
Q_DECLARE_LOGGING_CATEGORY(styleLog)

} // namespace tamble::client
