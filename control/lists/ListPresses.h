#pragma once

#include "lists/RowRanges.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointF>
#include <QtCore/Qt>

#include <span>

class QPointerEvent;
class QTimerEvent;

namespace tamble::client {

class RListViewBase;

/// Presses of the mouse and of fingers on a list, which become clicks, double clicks, double taps or long presses.
/// Places are in the list's coordinates.
class ListPresses
{
public:
    explicit ListPresses(RListViewBase &list);

    /// Whether a press is under way that may become something, and whether that is a finger's.
    bool isOpen() const { return m_isOpen; }
    bool isTouch() const { return m_byFinger; }

    void begin(const QPointF &place, bool byFinger);
    /// The present one becomes a long press if it rests.
    void awaitLongPress();
    void follow(const QPointF &place);
    void end(const QPointF &place, Qt::KeyboardModifiers modifiers);
    void cancel();
    void doubleClick(const QPointF &place);
    void rightClick(const QPointF &place);
    /// A control in a row gets this event. It keeps its long press to itself.
    void watch(const QPointerEvent &event);
    /// False for a timer event of something else.
    bool onTimer(const QTimerEvent &event);

    /// Rows have left, come or moved.
    void followRows(std::span<const RowChange> leaving, std::span<const RowChange> coming);
    /// All rows are others.
    void forgetRows();

private:
    RListViewBase &m_list;
    QPointF m_at;
    QElapsedTimer m_lastTap;
    QBasicTimer m_longPress;
    int m_row = -1;        ///< Of the press.
    int m_lastTapped = -1; ///< Row of the last tap.
    bool m_isOpen = false;
    bool m_byFinger = false;
};

} // namespace tamble::client
