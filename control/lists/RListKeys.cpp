#include "lists/RListViewBase.h"

#include "base/InputMeaning.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

#include <algorithm>

// What keys do to a list.

namespace tamble::client {

namespace {

constexpr Qt::KeyboardModifiers keyModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool entersLetters(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

void RListViewBase::keyPressEvent(QKeyEvent *event)
{
    forceLayout(); // what has changed since the last frame counts
    event->setAccepted(handleKey(*event));
}

bool RListViewBase::handleKey(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & keyModifiers;
    if (asksForMenu(event)) {
        requestMenu(m_currentRow, menuPlaceOfCurrent());
        return true;
    }
    if (modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (const auto target = targetOf(event)) {
        m_letters.clear();
        moveTo(*target, modifiers);
        return true;
    }
    const bool controls = modifiers & Qt::ControlModifier;
    if (controls && event.key() == Qt::Key_A && selectionMode() == Multiple) {
        editSelection(m_currentRow, [this](ListSelection &all) {
            all.setRows(RowRanges(RowRange{0, m_rows.count() - 1}));
        });
        return true;
    }
    if (event.key() == Qt::Key_Space && m_currentRow >= 0 && !(m_typeAhead && m_letters.isUnderWay())) {
        editSelection(m_currentRow, [row = m_currentRow, controls](ListSelection &selection) {
            controls ? selection.toggle(row) : selection.select(row);
        });
        return true;
    }
    if (isEnterKey(event))
        return activateCurrent(event);
    if (event.key() == Qt::Key_Escape && !m_selection.rows().isEmpty()) {
        editSelection(m_currentRow, [](ListSelection &selection) { selection.clear(); });
        return true;
    }
    if (!m_typeAhead || m_rows.count() == 0 || !entersLetters(event))
        return false;
    find(event.text());
    return true;
}

/// The row to which a key leads; none for other keys.
std::optional<int> RListViewBase::targetOf(const QKeyEvent &event) const
{
    const bool isVertical = orientation() == Vertical;
    const bool isReversed =
        isVertical ? verticalLayoutDirection() == BottomToTop : effectiveLayoutDirection() == Qt::RightToLeft;
    const int forth = isReversed ? -1 : 1;
    int steps = 0;
    if (event.key() == (isVertical ? Qt::Key_Up : Qt::Key_Left))
        steps = -forth;
    else if (event.key() == (isVertical ? Qt::Key_Down : Qt::Key_Right))
        steps = forth;
    else if (event.key() == Qt::Key_PageUp)
        steps = -forth * rowsPerPage();
    else if (event.key() == Qt::Key_PageDown)
        steps = forth * rowsPerPage();

    const int last = m_rows.count() - 1;
    if (last < 0)
        return std::nullopt;
    if (event.key() == Qt::Key_Home)
        return 0;
    if (event.key() == Qt::Key_End)
        return last;
    if (steps == 0)
        return std::nullopt;
    if (m_currentRow < 0) {
        const int next = m_formerRow < 0 && steps < 0 ? last + 1 : std::max(m_formerRow, 0);
        return std::clamp(steps < 0 ? next + steps : next + steps - 1, 0, last);
    }
    const int target = m_currentRow + steps;
    // Held down, an arrow stops at the end.
    const bool wraps = isWrapEnabled() && std::abs(steps) == 1 && !event.isAutoRepeat();
    if (wraps && (target < 0 || target > last))
        return target < 0 ? last : 0;
    return std::clamp(target, 0, last);
}

int RListViewBase::rowsPerPage() const
{
    const bool isVertical = orientation() == Vertical;
    const QQuickItem *row = currentItem();
    const qreal rowSize = spacing() + (!row ? 0.0 : isVertical ? row->height() : row->width());
    return rowSize > 0.0 ? std::max(1, int((isVertical ? height() : width()) / rowSize) - 1) : 1;
}

void RListViewBase::moveTo(int row, Qt::KeyboardModifiers modifiers)
{
    const QPointer<RListViewBase> guard(this);
    editSelection(row, [&](ListSelection &selection) {
        const bool controls = modifiers & Qt::ControlModifier;
        if (modifiers & Qt::ShiftModifier)
            selection.extendTo(row, m_currentRow, controls);
        else if (!controls)
            selection.select(row);
    });
    if (guard && m_currentRow >= 0)
        positionViewAtIndex(m_currentRow, Contain);
}

bool RListViewBase::activateCurrent(const QKeyEvent &event)
{
    // Otherwise the key is the dialog's around the list.
    if (m_currentRow < 0 || !isSignalConnected(QMetaMethod::fromSignal(&RListViewBase::activated)))
        return false;
    if (!event.isAutoRepeat())
        Q_EMIT activated(m_currentRow);
    return true;
}

void RListViewBase::find(const QString &letters)
{
    const TypedLetters::Search search = m_letters.type(letters);
    const int row =
        m_rows.rowBeginningWith(search.beginning, m_textRole, search.mayStay ? m_currentRow : m_currentRow + 1);
    if (row >= 0)
        moveTo(row, Qt::NoModifier);
}

} // namespace tamble::client
