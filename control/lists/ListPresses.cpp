#include "lists/ListPresses.h"

#include "base/InputMeaning.h"
#include "lists/RListViewBase.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

#include <utility>

namespace tamble::client {

ListPresses::ListPresses(RListViewBase &list)
    : m_list(list)
{}

void ListPresses::begin(const QPointF &place, bool byFinger)
{
    cancel();
    // A press that stops a moving list is meant for no row.
    if (m_list.isMoving())
        return;
    m_list.forceLayout();
    m_at = place;
    m_row = m_list.rowAt(place);
    m_isOpen = true;
    m_byFinger = byFinger;
}

void ListPresses::awaitLongPress()
{
    if (m_isOpen)
        m_longPress.start(longPressMs, &m_list);
}

void ListPresses::follow(const QPointF &place)
{
    if ((place - m_at).manhattanLength() > QGuiApplication::styleHints()->startDragDistance())
        cancel();
}

void ListPresses::cancel()
{
    m_longPress.stop();
    m_row = -1;
    m_isOpen = false;
    m_byFinger = false;
}

void ListPresses::end(const QPointF &place, Qt::KeyboardModifiers modifiers)
{
    const int row = m_row;
    const bool byFinger = m_byFinger;
    cancel();
    if (row < 0)
        return;
    m_list.forceLayout();
    if (m_list.rowAt(place) != row) // another row has come below the finger
        return;

    const bool isSecondTap = byFinger && row == m_lastTapped &&
                             m_lastTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval();
    m_lastTapped = byFinger && !isSecondTap ? row : -1;
    m_lastTap.start();
    const QPointer<RListViewBase> guard(&m_list);
    m_list.click(row, modifiers, byFinger);
    if (guard && isSecondTap && m_list.currentRow() >= 0)
        Q_EMIT m_list.activated(m_list.currentRow());
}

void ListPresses::doubleClick(const QPointF &place)
{
    cancel();
    const int row = m_list.rowAt(place);
    if (row >= 0 && row == m_list.currentRow())
        Q_EMIT m_list.activated(row);
}

void ListPresses::rightClick(const QPointF &place)
{
    cancel();
    m_list.forceLayout();
    const QPointer<RListViewBase> guard(&m_list);
    m_list.forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        m_list.requestMenu(m_list.rowAt(place), place);
}

void ListPresses::watch(const QPointerEvent &event)
{
    const auto *mouse = event.isSinglePointEvent() ? static_cast<const QSinglePointEvent *>(&event) : nullptr;
    const bool isLeft = !mouse || mouse->button() == Qt::LeftButton;
    const QPointF place = m_list.mapFromScene(event.points().first().scenePosition());
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        if (isLeft)
            begin(place, isByFinger(event));
        break;
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        follow(place);
        break;
    case QEvent::MouseButtonDblClick:
        if (isLeft && !isByFinger(event))
            doubleClick(place);
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        if (isLeft)
            end(place, event.modifiers());
        break;
    default:
        break;
    }
}

bool ListPresses::onTimer(const QTimerEvent &event)
{
    if (event.timerId() != m_longPress.timerId())
        return false;
    const int row = m_row;
    cancel();
    const QPointer<RListViewBase> guard(&m_list);
    m_list.forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        m_list.requestMenu(row, m_at);
    return true;
}

void ListPresses::followRows(std::span<const RowChange> leaving, std::span<const RowChange> coming)
{
    m_row = followedRow(m_row, leaving, coming);
    m_lastTapped = followedRow(m_lastTapped, leaving, coming);
}

void ListPresses::forgetRows()
{
    cancel();
    m_lastTapped = -1;
}

} // namespace tamble::client
