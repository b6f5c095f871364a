#pragma once

class QKeyEvent;

namespace tamble::client {

class WorkspaceBase;
class WorkspaceFocus;
class WorkspaceInput;

/// What keys do to a workspace.
class WorkspaceKeys
{
public:
    WorkspaceKeys(WorkspaceBase &workspace, WorkspaceInput &input, WorkspaceFocus &focus);

    /// Whether the canvas wants a key that the window has a shortcut for.
    bool overridesShortcut(const QKeyEvent &event) const;
    /// A key goes down (`press`) or up (`release`); false for one that is left to others.
    bool press(const QKeyEvent &event);
    bool release(const QKeyEvent &event);

private:
    bool pressCommand(const QKeyEvent &event);
    bool pressWithControl(int key);
    bool moveByArrow(const QKeyEvent &event);
    bool moveCurrent(bool isForward);
    void selectCurrent(bool toggles);
    void askForMenu();

    WorkspaceBase &m_workspace;
    WorkspaceInput &m_input;
    WorkspaceFocus &m_focus;
};

} // namespace tamble::client
