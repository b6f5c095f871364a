#include "workspace/WorkspaceBase.h"

namespace tamble::client {

WorkspaceBase::WorkspaceBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_ownSelection(new RWorkspaceSelection(this))
{}

void WorkspaceBase::setSelection(RWorkspaceSelection *selection)
{
    const auto *before = this->selection();
    m_selection = selection;
    if (this->selection() != before)
        Q_EMIT selectionChanged();
}

} // namespace tamble::client
