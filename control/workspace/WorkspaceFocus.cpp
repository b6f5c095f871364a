#include "workspace/WorkspaceFocus.h"

#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <utility>

namespace tamble::client {

WorkspaceFocus::WorkspaceFocus(WorkspaceBase &workspace)
    : m_workspace(workspace)
{
    // The canvas is one stop of the Tab key, whatever lies on it. (Qt would pass over an item all of whose children are
    // such fences; what detects the pointer is none.)
    QQuickItemPrivate::get(workspace.plane())->isTabFence = true;
}

void WorkspaceFocus::setCurrent(WorkspaceItemBase *item)
{
    if (m_current == item || (item && item->workspace() != &m_workspace))
        return;
    const QPointer<WorkspaceItemBase> before = std::exchange(m_current, item);
    const QPointer<WorkspaceBase> workspace(&m_workspace);
    if (before && before->workspace() == workspace)
        before->setKeyFocus(false);
    if (workspace)
        update();
    if (workspace)
        Q_EMIT workspace->currentItemChanged();
}

bool WorkspaceFocus::forget(const WorkspaceItemBase &item)
{
    if (m_current != &item)
        return false;
    m_current = nullptr;
    return true;
}

void WorkspaceFocus::update()
{
    if (!m_current)
        return;
    const QPointer<WorkspaceItemBase> item = m_current;
    const bool hasFocus = m_workspace.hasActiveFocus();
    if (item->setKeyFocus(hasFocus) && hasFocus && item && QAccessible::isActive()) {
        item->speak();
        announce(*item, QAccessible::Focus);
    }
}

void WorkspaceFocus::setWindow(QQuickWindow *window)
{
    disconnect(m_watch);
    if (window)
        m_watch = connect(window, &QQuickWindow::activeFocusItemChanged, this, &WorkspaceFocus::followFocus);
}

void WorkspaceFocus::followFocus()
{
    const QQuickItem *plane = m_workspace.plane();
    QQuickItem *focus = m_workspace.window() ? m_workspace.window()->activeFocusItem() : nullptr;
    setTabFences(true);
    m_inside = focus && focus != plane && plane->isAncestorOf(focus) ? focus : nullptr;
    setTabFences(false);
    for (QQuickItem *item = m_inside; item && item != plane; item = item->parentItem()) {
        if (auto *entered = dynamic_cast<WorkspaceItemBase *>(item))
            return setCurrent(entered);
    }
}

void WorkspaceFocus::setTabFences(bool areFences)
{
    for (QQuickItem *item = m_inside; item && item != &m_workspace; item = item->parentItem()) {
        if (item == m_workspace.plane() || dynamic_cast<WorkspaceItemBase *>(item))
            QQuickItemPrivate::get(item)->isTabFence = areFences;
    }
}

} // namespace tamble::client
