#include "ControlLog.h"

namespace tamble::client {

Q_LOGGING_CATEGORY(controlLog, "tamble.control")

} // namespace tamble::client
