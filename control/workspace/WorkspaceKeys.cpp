#include "base/InputMeaning.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"
#include "workspace/ZoomTravel.h"

#include <QtGui/QKeyEvent>

// What keys do to a workspace.

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

void WorkspaceBase::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(handleKey(*event));
}

void WorkspaceBase::keyReleaseEvent(QKeyEvent *event)
{
    const bool isSpace = event->key() == Qt::Key_Space && m_input->isSpaceHeld();
    event->setAccepted(isSpace);
    if (!isSpace || event->isAutoRepeat())
        return;
    const bool hasPanned = m_input->hasPanned();
    m_input->holdSpace(false);
    setFiltersChildMouseEvents(false);
    if (!hasPanned)
        selectCurrent(event->modifiers() & Qt::ControlModifier);
}

// During a gesture Esc takes it back, and with the focus the keys of the zoom are those of the canvas, whatever
// shortcuts the window has for them.
bool WorkspaceBase::overridesShortcut(const QKeyEvent &event) const
{
    if (event.key() == Qt::Key_Escape)
        return m_input->isUnderWay();
    return (event.modifiers() & keyModifiers & ~Qt::ShiftModifier) == Qt::ControlModifier && isZoomKey(event.key());
}

bool WorkspaceBase::handleKey(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & keyModifiers;
    if (!wayOf(event.key()).isNull())
        return moveByArrow(event);
    if (event.key() == Qt::Key_Escape) {
        if (m_input->isUnderWay())
            cancelGesture();
        else if (!selection()->empty())
            selection()->clear();
        else
            return false;
        return true;
    }
    const bool isModifier = event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
    if (isModifier)
        return false;
    const QPointer<WorkspaceBase> self(this);
    m_input->nudge().finish();
    if (!self)
        return true;
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
            m_input->holdSpace(true);
        setFiltersChildMouseEvents(true);
        return true;
    }
    if (modifiers & Qt::ControlModifier)
        return handleControlKey(event.key());
    if (isEnterKey(event) && m_currentItem) {
        Q_EMIT itemActivated(m_currentItem->itemId().toString(QUuid::WithoutBraces));
        return true;
    }
    if ((event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) && !m_readOnly) {
        QStringList ids;
        for (const WorkspaceItemBase *item : selectedHere())
            ids << item->itemId().toString(QUuid::WithoutBraces);
        if (!ids.isEmpty())
            Q_EMIT deleteRequested(ids);
        return !ids.isEmpty();
    }
    return false;
}

bool WorkspaceBase::handleControlKey(int key)
{
    const QPointF middle(width() / 2.0, height() / 2.0);
    switch (key) {
    case Qt::Key_A: {
        auto items = m_items->toRead();
        items.removeIf([](const WorkspaceItemBase *item) { return !item->isSelectable(); });
        selection()->apply(items, RWorkspaceSelection::Replace);
        return true;
    }
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomTo(zoom() * zoomKeyFactor, middle);
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        zoomTo(zoom() / zoomKeyFactor, middle);
        return true;
    case Qt::Key_0:
        zoomTo(1.0, middle);
        return true;
    case Qt::Key_1:
        zoomToFit();
        return true;
    case Qt::Key_2:
        zoomToSelection();
        return true;
    default:
        return false;
    }
}

bool WorkspaceBase::moveByArrow(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & keyModifiers;
    if (modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QPointF way = wayOf(event.key());
    if (selectedHere().isEmpty()) {
        pan(way * arrowPanPixels);
        return true;
    }
    double step = m_snapToGrid && m_gridSize > 0.0 ? m_gridSize : 1.0;
    if (modifiers & Qt::ShiftModifier)
        step = 1.0;
    else if (modifiers & Qt::ControlModifier)
        step = 5.0 * m_gridSize;
    nudge(way.x() * step, way.y() * step);
    return true;
}

bool WorkspaceBase::moveCurrent(bool isForward)
{
    const auto items = m_items->toRead();
    const qsizetype current = items.indexOf(m_currentItem);
    qsizetype next = current + (isForward ? 1 : -1);
    if (current < 0)
        next = isForward ? 0 : items.size() - 1;
    if (next < 0 || next >= items.size())
        return false;
    const QPointer<WorkspaceBase> self(this);
    const double margin = focusMargin / m_view.scale();
    const QRectF rect = items[next]->planeRect().adjusted(-margin, -margin, margin, margin);
    setCurrentItem(items[next]);
    if (self)
        ensureVisible(rect);
    return true;
}

void WorkspaceBase::selectCurrent(bool toggles)
{
    if (m_currentItem && m_currentItem->isSelectable())
        selection()->select(m_currentItem, toggles ? RWorkspaceSelection::Toggle : RWorkspaceSelection::Replace);
}

void WorkspaceBase::askForMenu()
{
    if (m_currentItem)
        Q_EMIT contextMenuRequested(m_currentItem->planeRect().center(),
                                    m_currentItem->itemId().toString(QUuid::WithoutBraces));
    else
        Q_EMIT contextMenuRequested(m_view.seen().center(), QString());
}

} // namespace tamble::client
