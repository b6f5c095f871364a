#include "StringVerdict.h"

#include <QDebugStateSaver>

namespace tamble::common {

QDebug operator<<(QDebug debug, const StringVerdict &verdict)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "StringVerdict(" << verdict.state << ", " << verdict.fault << ", position " << verdict.position
                    << ", limit " << verdict.limit << ", character " << static_cast<uint>(verdict.character) << ')';
    return debug;
}

} // namespace tamble::common
