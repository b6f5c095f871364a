#include "workspace/WorkspaceItemBase.h"

namespace tamble::client {

WorkspaceItemBase::WorkspaceItemBase(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
