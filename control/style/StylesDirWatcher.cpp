#include "style/StylesDirWatcher.h"

namespace tamble::client {

StylesDirWatcher::StylesDirWatcher(QObject *parent)
    : QObject(parent)
{}

} // namespace tamble::client
