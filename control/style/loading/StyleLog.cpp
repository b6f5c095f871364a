#include "style/loading/StyleLog.h"

namespace tamble::client {

Q_LOGGING_CATEGORY(styleLog, "tamble.style", QtWarningMsg)

} // namespace tamble::client
