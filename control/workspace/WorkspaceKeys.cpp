#include "workspace/WorkspaceKeys.h"

#include "base/InputMeaning.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceFocus.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"
#include "workspace/ZoomTravel.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

namespace tamble::client {

namespace {

constexpr double arrowPanPixels = 40.0;
constexpr double focusMargin = 8.0; // pixels around the current item, for its frame
constexpr Qt::KeyboardModifiers keyModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

QPointF wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1.0, 0.0);
    case Qt::Key_Right:
        return QPointF(1.0, 0.0);
    case Qt::Key_Up:
        return QPointF(0.0, -1.0);
    case Qt::Key_Down:
        return QPointF(0.0, 1.0);
    default:
        return QPointF();
    }
}

bool isZoomKey(int key)
{
    return key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus || key == Qt::Key_Underscore ||
           key == Qt::Key_0;
}

} // namespace

WorkspaceKeys::WorkspaceKeys(WorkspaceBase &workspace, WorkspaceInput &input, WorkspaceFocus &focus)
    : m_workspace(workspace)
    , m_input(input)
    , m_focus(focus)
{}

// During a gesture Esc takes it back, and with the focus the keys of the zoom are those of the canvas, whatever
// shortcuts the window has for them.
bool WorkspaceKeys::overridesShortcut(const QKeyEvent &event) const
{
    if (event.key() == Qt::Key_Escape)
        return m_input.isUnderWay();
    return (event.modifiers() & keyModifiers & ~Qt::ShiftModifier) == Qt::ControlModifier && isZoomKey(event.key());
}

bool WorkspaceKeys::press(const QKeyEvent &event)
{
    if (!wayOf(event.key()).isNull())
        return moveByArrow(event);
    if (event.key() == Qt::Key_Escape) {
        if (m_input.isUnderWay())
            m_workspace.cancelGesture();
        else if (!m_workspace.selection()->empty())
            m_workspace.selection()->clear();
        else
            return false;
        return true;
    }
    const bool isModifier = event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
    if (isModifier)
        return false;
    const QPointer<WorkspaceBase> self(&m_workspace);
    m_input.nudge().finish();
    return !self || pressCommand(event);
}

bool WorkspaceKeys::pressCommand(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & keyModifiers;
    if (asksForMenu(event)) {
        askForMenu();
        return true;
    }
    if (modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        return !(modifiers & Qt::ControlModifier) &&
               moveCurrent(event.key() == Qt::Key_Tab && modifiers == Qt::NoModifier);
    if (event.key() == Qt::Key_Space) {
        if (!event.isAutoRepeat())
            m_workspace.holdSpace(true);
        return true;
    }
    if (modifiers & Qt::ControlModifier)
        return pressWithControl(event.key());
    if (const WorkspaceItemBase *current = m_focus.current(); current && isEnterKey(event)) {
        Q_EMIT m_workspace.itemActivated(current->itemId().toString(QUuid::WithoutBraces));
        return true;
    }
    if ((event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) && !m_workspace.readOnly()) {
        QStringList ids;
        for (const WorkspaceItemBase *item : m_workspace.selectedHere())
            ids << item->itemId().toString(QUuid::WithoutBraces);
        if (!ids.isEmpty())
            Q_EMIT m_workspace.deleteRequested(ids);
        return !ids.isEmpty();
    }
    return false;
}

bool WorkspaceKeys::release(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Space || !m_input.isSpaceHeld())
        return false;
    if (event.isAutoRepeat())
        return true;
    const bool hasPanned = m_input.hasPanned();
    m_workspace.holdSpace(false);
    if (!hasPanned)
        selectCurrent(event.modifiers() & Qt::ControlModifier);
    return true;
}

bool WorkspaceKeys::pressWithControl(int key)
{
    const QPointF middle(m_workspace.width() / 2.0, m_workspace.height() / 2.0);
    switch (key) {
    case Qt::Key_A: {
        auto items = m_workspace.placed().toRead();
        items.removeIf([](const WorkspaceItemBase *item) { return !item->isSelectable(); });
        m_workspace.selection()->apply(items, RWorkspaceSelection::Replace);
        return true;
    }
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_workspace.zoomTo(m_workspace.zoom() * zoomKeyFactor, middle);
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        m_workspace.zoomTo(m_workspace.zoom() / zoomKeyFactor, middle);
        return true;
    case Qt::Key_0:
        m_workspace.zoomTo(1.0, middle);
        return true;
    case Qt::Key_1:
        m_workspace.zoomToFit();
        return true;
    case Qt::Key_2:
        m_workspace.zoomToSelection();
        return true;
    default:
        return false;
    }
}

bool WorkspaceKeys::moveByArrow(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & keyModifiers;
    if (modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QPointF way = wayOf(event.key());
    if (m_workspace.selectedHere().isEmpty()) {
        m_workspace.pan(way * arrowPanPixels);
        return true;
    }
    double step = m_workspace.snapsToGrid() && m_workspace.gridSize() > 0.0 ? m_workspace.gridSize() : 1.0;
    if (modifiers & Qt::ShiftModifier)
        step = 1.0;
    else if (modifiers & Qt::ControlModifier)
        step = 5.0 * m_workspace.gridSize();
    m_workspace.nudge(way.x() * step, way.y() * step);
    return true;
}

bool WorkspaceKeys::moveCurrent(bool isForward)
{
    const auto items = m_workspace.placed().toRead();
    const qsizetype current = items.indexOf(m_focus.current());
    qsizetype next = current + (isForward ? 1 : -1);
    if (current < 0)
        next = isForward ? 0 : items.size() - 1;
    if (next < 0 || next >= items.size())
        return false;
    const QPointer<WorkspaceBase> self(&m_workspace);
    const double margin = focusMargin / m_workspace.view().scale();
    const QRectF rect = items[next]->planeRect().adjusted(-margin, -margin, margin, margin);
    m_focus.setCurrent(items[next]);
    if (self)
        m_workspace.ensureVisible(rect);
    return true;
}

void WorkspaceKeys::selectCurrent(bool toggles)
{
    WorkspaceItemBase *current = m_focus.current();
    if (current && current->isSelectable())
        m_workspace.selection()->select(current, toggles ? RWorkspaceSelection::Toggle : RWorkspaceSelection::Replace);
}

void WorkspaceKeys::askForMenu()
{
    const WorkspaceItemBase *current = m_focus.current();
    const QPointF place = current ? current->planeRect().center() : m_workspace.view().seen().center();
    Q_EMIT m_workspace.contextMenuRequested(place,
                                            current ? current->itemId().toString(QUuid::WithoutBraces) : QString());
}

} // namespace tamble::client
