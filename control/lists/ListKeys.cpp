#include "lists/ListKeys.h"

#include "base/InputMeaning.h"
#include "lists/RListViewBase.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

#include <algorithm>

namespace tamble::client {

namespace {

bool entersLetters(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

ListKeys::ListKeys(RListViewBase &list)
    : m_list(list)
{}

bool ListKeys::handle(const QKeyEvent &event)
{
    if (asksForMenu(event)) {
        m_list.requestMenu(m_list.currentRow(), menuPlace());
        return true;
    }
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (const auto target = rowByKey(event.key(), event.isAutoRepeat(), position())) {
        forgetLetters();
        moveTo(*target, event.modifiers());
        return true;
    }
    if (select(event))
        return true;
    return isEnterKey(event) ? m_list.activateCurrent(event.isAutoRepeat()) : find(event);
}

/// Ctrl+A, Space and Esc.
bool ListKeys::select(const QKeyEvent &event)
{
    const int current = m_list.currentRow();
    const bool controls = event.modifiers() & Qt::ControlModifier;
    if (controls && event.key() == Qt::Key_A && m_list.selectionMode() == RListViewBase::Multiple) {
        m_list.editSelection(current, [last = m_list.count() - 1](ListSelection &all) {
            all.setRows(RowRanges(RowRange{0, last}));
        });
        return true;
    }
    if (event.key() == Qt::Key_Space && current >= 0 && !(m_list.findsByLetters() && m_letters.isUnderWay())) {
        m_list.editSelection(current, [current, controls](ListSelection &selection) {
            controls ? selection.toggle(current) : selection.select(current);
        });
        return true;
    }
    if (event.key() == Qt::Key_Escape && m_list.hasSelection()) {
        m_list.editSelection(current, [](ListSelection &selection) { selection.clear(); });
        return true;
    }
    return false;
}

bool ListKeys::find(const QKeyEvent &event)
{
    if (!m_list.findsByLetters() || m_list.count() == 0 || !entersLetters(event))
        return false;
    const TypedLetters::Search search = m_letters.type(event.text());
    const int current = m_list.currentRow();
    const int row = m_list.rowBeginningWith(search.beginning, search.mayStay ? current : current + 1);
    if (row >= 0)
        moveTo(row, Qt::NoModifier);
    return true;
}

ListPosition ListKeys::position() const
{
    const bool isVertical = m_list.orientation() == QQuickListView::Vertical;
    const QQuickItem *row = m_list.currentItem();
    const qreal length = isVertical ? m_list.height() : m_list.width();
    const qreal rowLength = m_list.spacing() + (!row ? 0.0 : isVertical ? row->height() : row->width());
    ListPosition position;
    position.count = m_list.count();
    position.current = m_list.currentRow();
    position.former = m_list.formerRow();
    position.rowsPerPage = rowLength > 0.0 ? std::max(1, int(length / rowLength) - 1) : 1;
    position.isVertical = isVertical;
    position.isReversed = isVertical ? m_list.verticalLayoutDirection() == QQuickItemView::BottomToTop
                                     : m_list.effectiveLayoutDirection() == Qt::RightToLeft;
    position.wraps = m_list.isWrapEnabled();
    return position;
}

/// Below the current row, as far as that is in view.
QPointF ListKeys::menuPlace() const
{
    const QQuickItem *row = m_list.currentItem();
    const QPointF place = row ? m_list.mapFromItem(row, QPointF(0.0, row->height())) : QPointF();
    return {std::clamp(place.x(), 0.0, m_list.width()), std::clamp(place.y(), 0.0, m_list.height())};
}

void ListKeys::moveTo(int row, Qt::KeyboardModifiers modifiers)
{
    const QPointer<RListViewBase> guard(&m_list);
    m_list.editSelection(row, [&](ListSelection &selection) {
        const bool controls = modifiers & Qt::ControlModifier;
        if (modifiers & Qt::ShiftModifier)
            selection.extendTo(row, m_list.currentRow(), controls);
        else if (!controls)
            selection.select(row);
    });
    if (guard && m_list.currentRow() >= 0)
        m_list.positionViewAtIndex(m_list.currentRow(), QQuickItemView::Contain);
}

} // namespace tamble::client
