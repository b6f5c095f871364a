#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <utility>

// Which item of a workspace has the keyboard, and what assistive tools hear.

namespace tamble::client {

QObject *WorkspaceBase::currentItem() const
{
    return m_currentItem;
}

void WorkspaceBase::setCurrentItem(WorkspaceItemBase *item)
{
    if (m_currentItem == item || (item && item->workspace() != this))
        return;
    const QPointer<WorkspaceItemBase> before = std::exchange(m_currentItem, item);
    const QPointer<WorkspaceBase> self(this);
    if (before && before->workspace() == this)
        before->setState(&WorkspaceItemBase::m_keyFocus, false, &WorkspaceItemBase::keyFocusChanged);
    if (self)
        updateKeyFocus();
    if (self)
        Q_EMIT currentItemChanged();
}

void WorkspaceBase::updateKeyFocus()
{
    if (!m_currentItem)
        return;
    const QPointer<WorkspaceItemBase> item = m_currentItem;
    const bool hasFocus = hasActiveFocus();
    const bool hasChanged =
        item->setState(&WorkspaceItemBase::m_keyFocus, hasFocus, &WorkspaceItemBase::keyFocusChanged);
    if (hasChanged && hasFocus && item && QAccessible::isActive()) {
        item->speak();
        announce(*item, QAccessible::Focus);
    }
}

// A click gives the keyboard to a control on an item, which Tab does not reach from outside: from there it goes through
// the controls of the same item, and then leaves the canvas.
void WorkspaceBase::followFocus()
{
    QQuickItem *focus = window() ? window()->activeFocusItem() : nullptr;
    setTabFences(true);
    m_focusInside = focus && focus != m_plane && m_plane->isAncestorOf(focus) ? focus : nullptr;
    setTabFences(false);
    for (QQuickItem *item = m_focusInside; item && item != m_plane; item = item->parentItem()) {
        if (auto *entered = dynamic_cast<WorkspaceItemBase *>(item))
            return setCurrentItem(entered);
    }
}

void WorkspaceBase::setTabFences(bool areFences)
{
    for (QQuickItem *item = m_focusInside; item && item != this; item = item->parentItem()) {
        if (item == m_plane || dynamic_cast<WorkspaceItemBase *>(item))
            QQuickItemPrivate::get(item)->isTabFence = areFences;
    }
}

void WorkspaceBase::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    updateKeyFocus();
}

void WorkspaceBase::focusOutEvent(QFocusEvent *event)
{
    const QPointer<WorkspaceBase> self(this);
    QQuickItem::focusOutEvent(event);
    m_input->holdSpace(false);
    setFiltersChildMouseEvents(false);
    m_input->nudge().finish();
    if (self)
        updateKeyFocus();
}

QString WorkspaceBase::spokenName() const
{
    return tr("Workspace");
}

QList<QQuickItem *> WorkspaceBase::spokenOrder(const QList<QQuickItem *> &children) const
{
    QList<QQuickItem *> ordered;
    for (WorkspaceItemBase *item : m_items->toRead()) {
        if (item->inView() && children.contains(item))
            ordered.append(item);
    }
    for (QQuickItem *child : children) {
        if (!qobject_cast<WorkspaceItemBase *>(child))
            ordered.append(child);
    }
    return ordered;
}

void WorkspaceBase::accessibilityActiveChanged(bool active)
{
    if (active)
        speak();
}

void WorkspaceBase::speak()
{
    beginToSpeak(*this);
    for (WorkspaceItemBase *item : m_items->all()) {
        if (item->inView())
            item->speak();
    }
}

} // namespace tamble::client
