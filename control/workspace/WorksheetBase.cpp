#include "workspace/WorksheetBase.h"

namespace tamble::client {

WorksheetBase::WorksheetBase(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
