#include "lists/RListViewBase.h"

#include "base/InputMeaning.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

#include <algorithm>
#include <utility>

// What the pointer does to a list, and the menu that both it and a key ask for.

namespace tamble::client {

int RListViewBase::rowAt(const QPointF &place)
{
    if (!contains(place))
        return -1;
    const QPointF inContent = mapToItem(contentItem(), place);
    return indexAt(inContent.x(), inContent.y());
}

void RListViewBase::beginPress(const QPointF &place, bool byFinger)
{
    cancelPress();
    // A press that stops a moving list is meant for no row.
    if (isMoving())
        return;
    forceLayout();
    m_press = {place, rowAt(place), true, byFinger};
}

void RListViewBase::followPress(const QPointF &place)
{
    if ((place - m_press.at).manhattanLength() > QGuiApplication::styleHints()->startDragDistance())
        cancelPress();
}

void RListViewBase::cancelPress()
{
    m_longPress.stop();
    m_press = {};
}

void RListViewBase::endPress(const QPointF &place, Qt::KeyboardModifiers modifiers)
{
    const Press press = std::exchange(m_press, {});
    m_longPress.stop();
    if (!press.isOpen || press.row < 0)
        return;
    forceLayout();
    if (rowAt(place) != press.row) // another row has come below the finger
        return;

    const bool isSecondTap = press.byFinger && press.row == m_lastTapped &&
                             m_lastTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval();
    m_lastTapped = press.byFinger && !isSecondTap ? press.row : -1;
    m_lastTap.start();
    const QPointer<RListViewBase> guard(this);
    click(press.row, modifiers, press.byFinger);
    if (guard && isSecondTap && m_currentRow >= 0)
        Q_EMIT activated(m_currentRow);
}

void RListViewBase::click(int row, Qt::KeyboardModifiers modifiers, bool byFinger)
{
    m_letters.clear();
    editSelection(row, [&](ListSelection &selection) {
        const bool controls = modifiers & Qt::ControlModifier;
        if (modifiers & Qt::ShiftModifier)
            selection.extendTo(row, m_currentRow, controls);
        else if (controls || (byFinger && selectionMode() == Multiple))
            selection.toggle(row);
        else
            selection.select(row);
    });
}

void RListViewBase::press(const QQuickItem &row)
{
    forceLayout();
    const QPointF centre = contentItem()->mapFromItem(&row, row.boundingRect().center());
    const int index = indexAt(centre.x(), centre.y());
    if (index >= 0)
        click(index, Qt::NoModifier, selectionMode() == Multiple);
}

void RListViewBase::requestMenu(int row, const QPointF &place)
{
    const QPointer<RListViewBase> guard(this);
    if (row >= 0) {
        editSelection(row, [row](ListSelection &selection) {
            if (!selection.rows().contains(row))
                selection.select(row);
        });
    }
    if (guard)
        Q_EMIT contextMenuRequested(row < 0 ? -1 : m_currentRow, place);
}

/// Below the row, as far as that is in view.
QPointF RListViewBase::menuPlaceOfCurrent() const
{
    const QQuickItem *row = currentItem();
    const QPointF place = row ? mapFromItem(row, QPointF(0.0, row->height())) : QPointF();
    return {std::clamp(place.x(), 0.0, width()), std::clamp(place.y(), 0.0, height())};
}

void RListViewBase::mousePressEvent(QMouseEvent *event)
{
    const QPointF place = event->position();
    if (event->button() == Qt::RightButton) {
        cancelPress();
        forceLayout();
        const QPointer<RListViewBase> guard(this);
        forceActiveFocus(Qt::MouseFocusReason);
        if (guard)
            requestMenu(rowAt(place), place);
        return;
    }
    beginPress(place, isByFinger(*event));
    if (m_press.isOpen)
        m_longPress.start(longPressMs, this);
    QQuickListView::mousePressEvent(event);
    event->accept();
    if (!m_press.byFinger)
        forceActiveFocus(Qt::MouseFocusReason);
}

void RListViewBase::mouseMoveEvent(QMouseEvent *event)
{
    followPress(event->position());
    QQuickListView::mouseMoveEvent(event);
}

void RListViewBase::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<RListViewBase> guard(this);
    QQuickListView::mouseReleaseEvent(event);
    if (guard && m_press.byFinger)
        forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        endPress(event->position(), event->modifiers());
}

void RListViewBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !isByFinger(*event))
        doubleClick(event->position());
}

void RListViewBase::doubleClick(const QPointF &place)
{
    cancelPress();
    const int row = rowAt(place);
    if (row >= 0 && row == m_currentRow)
        Q_EMIT activated(row);
}

void RListViewBase::mouseUngrabEvent()
{
    cancelPress();
    QQuickListView::mouseUngrabEvent();
}

void RListViewBase::touchEvent(QTouchEvent *event)
{
    const QPointF place = event->points().first().position();
    const QPointer<RListViewBase> guard(this);
    if (event->type() == QEvent::TouchBegin) {
        beginPress(place, true);
        if (m_press.isOpen)
            m_longPress.start(longPressMs, this);
    } else if (event->type() == QEvent::TouchCancel) {
        cancelPress();
    } else {
        followPress(place);
    }
    QQuickListView::touchEvent(event);
    if (!guard || event->type() != QEvent::TouchEnd || !m_press.isOpen)
        return;
    forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        endPress(place, event->modifiers());
}

void RListViewBase::touchUngrabEvent()
{
    cancelPress();
    QQuickListView::touchUngrabEvent();
}

// Of presses that a control in a row takes the list learns here; they keep their long press to themselves.
bool RListViewBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (!event->isPointerEvent() || !contentItem()->isAncestorOf(item))
        return QQuickListView::childMouseEventFilter(item, event);

    const auto &pointer = static_cast<const QPointerEvent &>(*event);
    const auto *mouse = event->isSinglePointEvent() ? static_cast<const QSinglePointEvent *>(event) : nullptr;
    const bool isLeft = !mouse || mouse->button() == Qt::LeftButton;
    const QPointF place = mapFromScene(pointer.points().first().scenePosition());
    const QPointer<RListViewBase> guard(this);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        if (isLeft)
            beginPress(place, isByFinger(pointer));
        break;
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        followPress(place);
        break;
    case QEvent::MouseButtonDblClick:
        if (isLeft && !isByFinger(pointer))
            doubleClick(place);
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        if (isLeft)
            endPress(place, pointer.modifiers());
        break;
    default:
        break;
    }
    return !guard || QQuickListView::childMouseEventFilter(item, event);
}

void RListViewBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_longPress.timerId()) {
        QQuickListView::timerEvent(event);
        return;
    }
    const Press press = std::exchange(m_press, {});
    m_longPress.stop();
    const QPointer<RListViewBase> guard(this);
    forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        requestMenu(press.row, press.at);
}

void RListViewBase::hoverEnterEvent(QHoverEvent *event)
{
    QQuickListView::hoverEnterEvent(event);
    pointAt(event->position());
}

void RListViewBase::hoverMoveEvent(QHoverEvent *event)
{
    QQuickListView::hoverMoveEvent(event);
    pointAt(event->position());
}

void RListViewBase::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickListView::hoverLeaveEvent(event);
    pointAt(std::nullopt);
}

void RListViewBase::pointAt(std::optional<QPointF> place)
{
    m_pointer = place;
    if (findHoveredRow())
        polish();
}

/// Whether the pointer is above another row than before.
bool RListViewBase::findHoveredRow()
{
    const int row = m_pointer ? rowAt(*m_pointer) : -1;
    return std::exchange(m_hoveredRow, row) != row;
}

} // namespace tamble::client
