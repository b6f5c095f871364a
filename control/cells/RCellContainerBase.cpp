#include "cells/RCellContainerBase.h"

#include "cells/CellTexts.h"
#include "cells/RCellBase.h"
#include "cells/TabSeparated.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace tamble::client {

namespace {

struct KeyMove
{
    int key;
    CellMove plain;
    CellMove withControl;
};

constexpr KeyMove keyMoves[] = {
    {Qt::Key_Left, CellMove::Left, CellMove::LeftEdge},      {Qt::Key_Right, CellMove::Right, CellMove::RightEdge},
    {Qt::Key_Up, CellMove::Up, CellMove::TopEdge},           {Qt::Key_Down, CellMove::Down, CellMove::BottomEdge},
    {Qt::Key_Home, CellMove::LeftEdge, CellMove::FirstCell}, {Qt::Key_End, CellMove::RightEdge, CellMove::LastCell},
};

std::optional<CellMove> moveOf(const QKeyEvent &event, bool mirrored)
{
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier))
        return std::nullopt;
    int key = event.key();
    if (mirrored && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    const auto *found = std::ranges::find(keyMoves, key, &KeyMove::key);
    if (found == std::end(keyMoves))
        return std::nullopt;
    return event.modifiers() & Qt::ControlModifier ? found->withControl : found->plain;
}

} // namespace

RCellContainerBase::RCellContainerBase(QQuickItem *parent)
    : CellArrangement(parent)
{
    setFlag(ItemIsFocusScope);
    setActiveFocusOnTab(true);
    setFiltersChildMouseEvents(true);
    QAccessible::installActivationObserver(this);
}

RCellContainerBase::~RCellContainerBase()
{
    // They would hear of it when little of this is left.
    for (QQuickItem *child : childItems()) {
        if (auto *cell = qobject_cast<RCellBase *>(child))
            cell->setContainer(nullptr);
    }
    QAccessible::removeActivationObserver(this);
}

void RCellContainerBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    for (const auto &cell : std::vector(cells())) {
        if (cell)
            cell->followLock();
    }
    Q_EMIT readOnlyChanged();
}

void RCellContainerBase::componentComplete()
{
    CellArrangement::componentComplete();
    if (QAccessible::isActive())
        accessibilityActiveChanged(true);
}

void RCellContainerBase::cellsPlaced()
{
    const QPointer<RCellContainerBase> guard(this);
    followCurrent();
    if (guard)
        select();
}

void RCellContainerBase::setCurrentRow(int row)
{
    setPlace({std::max(row, -1), m_place.column}, Anchor::Moves);
    revealCurrent();
}

void RCellContainerBase::setCurrentColumn(int column)
{
    setPlace({m_place.row, std::max(column, -1)}, Anchor::Moves);
    revealCurrent();
}

void RCellContainerBase::setSelectionMode(SelectionMode mode)
{
    if (std::exchange(m_selectionMode, mode) == mode)
        return;
    m_anchor = m_place;
    const QPointer<RCellContainerBase> guard(this);
    select();
    if (guard)
        Q_EMIT selectionModeChanged();
}

QRectF RCellContainerBase::selection() const
{
    return QRectF(m_selected.column, m_selected.row, m_selected.columns, m_selected.rows);
}

void RCellContainerBase::makeCurrent(const RCellBase &cell)
{
    if (m_current != &cell)
        setPlace(cell.area().place(), Anchor::Moves);
}

void RCellContainerBase::activate(const RCellBase &cell)
{
    const CellPlace place = cell.area().place();
    Q_EMIT cellActivated(place.row, place.column);
}

void RCellContainerBase::step(CellMove move, bool extends)
{
    const QPointer<RCellContainerBase> guard(this);
    setPlace(moved(plan(), m_place, move), extends ? Anchor::Stays : Anchor::Moves);
    if (guard)
        revealCurrent();
}

void RCellContainerBase::setPlace(CellPlace place, Anchor anchor)
{
    const CellPlace before = std::exchange(m_place, place);
    if (anchor == Anchor::Moves || m_anchor.isNone())
        m_anchor = place;
    const QPointer<RCellContainerBase> guard(this);
    if (isComponentComplete())
        followCurrent();
    if (guard && isComponentComplete())
        select();
    if (guard && before.row != place.row)
        Q_EMIT currentRowChanged();
    if (guard && before.column != place.column)
        Q_EMIT currentColumnChanged();
    if (guard && before != place)
        Q_EMIT currentChanged(place.row, place.column);
}

/// The cell at the current place gets the focus when the table has it.
void RCellContainerBase::followCurrent()
{
    const int index = plan().cellAt(m_place);
    const bool isOpen = index >= 0 && plan().cells()[std::size_t(index)].isReachable;
    RCellBase *cell = isOpen ? cells()[std::size_t(index)].get() : nullptr;
    const QPointer<RCellBase> former = std::exchange(m_current, cell);
    if (former == cell)
        return;
    if (cell)
        cell->setCurrent(true);
    if (former)
        former->setCurrent(false);
}

void RCellContainerBase::revealCurrent()
{
    if (m_current && gridProperties())
        reveal(*m_current);
}

CellArea RCellContainerBase::selectedArea()
{
    if (m_place.isNone())
        return {};
    CellArea area = plan().areaAt(m_place);
    if (m_selectionMode == Rectangle)
        return plan().wholeCells(area.united(plan().areaAt(m_anchor)));
    if (m_selectionMode == Row) {
        area.column = gridProperties() ? std::max(0, gridProperties()->headerColumns()) : 0;
        area.columns = std::max(0, plan().columnCount() - area.column);
    }
    return area;
}

void RCellContainerBase::select()
{
    const CellArea area = selectedArea();
    // One cell is seen well enough by its frame.
    const bool isShown = m_selectionMode == Row || area != plan().areaAt(m_place);
    for (std::size_t i = 0; i < cells().size(); ++i) {
        if (cells()[i])
            cells()[i]->setHighlighted(isShown && plan().cells()[i].isReachable &&
                                       plan().cells()[i].area.touches(area));
    }
    if (std::exchange(m_selected, area) != area)
        Q_EMIT cellsSelected(selection());
}

void RCellContainerBase::keyPressEvent(QKeyEvent *event)
{
    if (const auto move = moveOf(*event, isMirrored())) {
        step(*move, m_selectionMode == Rectangle && event->modifiers() & Qt::ShiftModifier);
    } else if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->key() == Qt::Key_Escape && m_anchor != m_place) {
        setPlace(m_place, Anchor::Moves);
    } else {
        event->ignore();
    }
}

// Before the control in the cell, which would be pressed or edited.
bool RCellContainerBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (m_selectionMode != Rectangle || event->type() != QEvent::MouseButtonPress ||
        static_cast<QMouseEvent *>(event)->modifiers() != Qt::ShiftModifier)
        return false;
    while (item && item->parentItem() != this)
        item = item->parentItem();
    const auto *cell = qobject_cast<RCellBase *>(item);
    if (!cell || !isReachable(*cell))
        return false;
    setPlace(cell->area().place(), Anchor::Stays);
    forceActiveFocus(Qt::MouseFocusReason);
    return true;
}

void RCellContainerBase::copy()
{
    if (const CellArea area = selectedArea(); !area.isEmpty())
        QGuiApplication::clipboard()->setText(textOf(*this, area));
}

void RCellContainerBase::paste()
{
    const QList<QStringList> rows = fromTabSeparated(QGuiApplication::clipboard()->text());
    const CellArea area = selectedArea();
    if (rows.isEmpty() || area.isEmpty())
        return;
    for (const auto &cell : std::vector(cells())) {
        if (cell)
            cell->setRefusal({});
    }
    const QPointer<RCellContainerBase> guard(this);
    const TakenTexts texts = putTexts(*this, area, rows);
    if (guard)
        Q_EMIT pasted(texts.taken, texts.refused);
}

void RCellContainerBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

void RCellContainerBase::addSpokenStates(QAccessible::State &state) const
{
    state.readOnly = m_readOnly;
    state.extSelectable = m_selectionMode == Rectangle;
}

} // namespace tamble::client
