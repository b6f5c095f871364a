#include "workspace/RWorkspaceSelection.h"

namespace tamble::client {

RWorkspaceSelection::RWorkspaceSelection(QObject *parent)
    : QObject(parent)
{}

} // namespace tamble::client
