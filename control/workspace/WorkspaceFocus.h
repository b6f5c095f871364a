#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

class QQuickWindow;

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Which item of a workspace keys act on, and whether it has the keyboard.
///
/// A click gives the keyboard to a control on an item, which Tab does not reach from outside: from there it goes
/// through the controls of the same item, and then leaves the canvas.
class WorkspaceFocus : public QObject
{
public:
    explicit WorkspaceFocus(WorkspaceBase &workspace);

    WorkspaceItemBase *current() const { return m_current; }
    void setCurrent(WorkspaceItemBase *item);
    /// An item leaves the workspace; true when it was the current one.
    bool forget(const WorkspaceItemBase &item);
    /// The workspace has got the keyboard, or lost it.
    void update();
    /// The workspace is in this window, or in none.
    void setWindow(QQuickWindow *window);

private:
    void followFocus();
    void setTabFences(bool areFences);

    WorkspaceBase &m_workspace;
    WorkspaceItemBase *m_current = nullptr;
    QPointer<QQuickItem> m_inside; // a control on the plane that has the keyboard
    QMetaObject::Connection m_watch;
};

} // namespace tamble::client
