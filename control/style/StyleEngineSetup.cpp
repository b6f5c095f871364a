#include "style/StyleEngineSetup.h"

namespace tamble::client {

StyleEngineSetup::StyleEngineSetup(QObject *parent)
    : QObject(parent)
{}

void StyleEngineSetup::classBegin() {}

void StyleEngineSetup::componentComplete() {}

} // namespace tamble::client
