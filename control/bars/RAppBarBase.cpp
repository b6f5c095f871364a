#include "bars/RAppBarBase.h"

#include "bars/RAppBarNavButtonBase.h"
#include "scrolling/EnclosingView.h"

#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// In density-independent units; with less room for the navigation, more of the row than that is flicked.
constexpr double leastNavigation = 144.0;

/// In density-independent units: what the arrows at the ends of a flicked row cover.
constexpr double coveredByArrow = 32.0;

QList<QQuickItem *> shownChildren(const QQuickItem &row)
{
    QList<QQuickItem *> children = row.childItems();
    children.removeIf([](const QQuickItem *child) { return !child->isVisible() || child->width() <= 0.0; });
    return children;
}

/// What a row takes when each of its children has the width that `widthOf` says.
template <typename WidthOf>
double rowWidth(const QQuickItem &row, WidthOf widthOf)
{
    const double spacing = row.property("spacing").toDouble();
    double width = 0.0;
    for (const QQuickItem *child : shownChildren(row))
        width += widthOf(*child) + spacing;
    return std::max(0.0, width - spacing);
}

double widthNow(const QQuickItem &item)
{
    return item.width();
}

double widthWithText(const QQuickItem &item)
{
    const auto *button = qobject_cast<const RAppBarNavButtonBase *>(&item);
    return button ? button->naturalWidth() : item.width();
}

double widthWithoutText(const QQuickItem &item)
{
    const auto *button = qobject_cast<const RAppBarNavButtonBase *>(&item);
    return button ? button->compactWidth() : item.width();
}

void collectButtons(const QQuickItem &parent, QList<RButtonBase *> &buttons)
{
    for (QQuickItem *item : parent.childItems()) {
        if (!item->isVisible() || !item->isEnabled())
            continue;
        auto *button = qobject_cast<RButtonBase *>(item);
        if (!button)
            collectButtons(*item, buttons);
        else if (button->focusPolicy() & Qt::TabFocus)
            buttons.append(button);
    }
}

} // namespace

RAppBarBase::RAppBarBase(QQuickItem *parent)
    : QQuickToolBar(parent)
{}

RAppBarBase::~RAppBarBase()
{
    disconnect(m_windowFocus);
    for (QQuickItem *row : {leadingRow(), navigationRow(), trailingRow(), subRow()}) {
        if (row)
            row->disconnect(this);
    }
}

void RAppBarBase::setRow(QPointer<QQuickItem> &stored, QQuickItem *row)
{
    if (stored || !row)
        return;
    stored = row;
    connect(row, &QQuickItem::implicitWidthChanged, this, &RAppBarBase::planAgain);
    planAgain();
    Q_EMIT rowsChanged();
}

void RAppBarBase::componentComplete()
{
    QQuickToolBar::componentComplete();
    planAgain();
}

void RAppBarBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickToolBar::geometryChange(newGeometry, oldGeometry);
    planAgain();
}

void RAppBarBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickToolBar::itemChange(change, data);
    if (change != ItemSceneChange)
        return;
    disconnect(m_windowFocus);
    if (data.window)
        m_windowFocus = connect(data.window, &QQuickWindow::activeFocusItemChanged, this, &RAppBarBase::followFocus);
}

void RAppBarBase::updatePolish()
{
    QQuickToolBar::updatePolish();
    if (!isComponentComplete() || !hasRows())
        return;
    const BarWidths widths{rowWidth(*m_leadingRow, widthNow), rowWidth(*m_navigationRow, widthWithText),
                           rowWidth(*m_navigationRow, widthWithoutText), rowWidth(*m_trailingRow, widthNow)};
    setImplicitWidth(widths.leading + widths.navigation + widths.trailing);
    usePlan(planBar(widths, availableWidth(), leastNavigation * m_unit));
    const bool isSubNavVisible = !shownChildren(*m_subRow).isEmpty();
    if (std::exchange(m_isSubNavVisible, isSubNavVisible) != isSubNavVisible)
        Q_EMIT subNavVisibleChanged();
    reveal(buttonsAt(Place::MainRow).selectedTab());
    reveal(buttonsAt(Place::SubRow).selectedTab());
    reveal(m_focusedButton);
}

void RAppBarBase::usePlan(const BarPlan &plan)
{
    const BarPlan before = std::exchange(m_plan, plan);
    for (QQuickItem *item : m_navigationRow->childItems()) {
        if (auto *button = qobject_cast<RAppBarNavButtonBase *>(item))
            button->setIconOnly(plan.compact);
    }
    if (before.compact != plan.compact)
        Q_EMIT compactChanged();
    if (before.navigation != plan.navigation)
        Q_EMIT navigationRoomChanged();
    if (before.whole != plan.whole)
        Q_EMIT wholeWidthChanged();
    if (before.trailingStays != plan.trailingStays)
        Q_EMIT trailingStaysChanged();
}

void RAppBarBase::reveal(const QQuickItem *item)
{
    if (!item)
        return;
    const double covered = coveredByArrow * m_unit;
    for (QQuickItem *view = item->parentItem(); view && view != this; view = view->parentItem()) {
        if (view->inherits("QQuickFlickable"))
            EnclosingView::reveal(*view, view->mapRectFromItem(item, item->boundingRect()), {covered, 0, covered, 0});
    }
}

RAppBarBase::Place RAppBarBase::placeOf(const QQuickItem *item) const
{
    if (!item || !hasRows() || !isAncestorOf(item))
        return Place::Elsewhere;
    return m_subRow->isAncestorOf(item) ? Place::SubRow : Place::MainRow;
}

FocusRow RAppBarBase::buttonsAt(Place place) const
{
    FocusRow found;
    if (!hasRows() || place == Place::Elsewhere)
        return found;
    QList<const QQuickItem *> rows{m_subRow};
    if (place == Place::MainRow)
        rows = {leadingRow(), navigationRow(), trailingRow()};
    if (isMirrored())
        std::reverse(rows.begin(), rows.end());
    for (const QQuickItem *row : std::as_const(rows)) {
        QList<RButtonBase *> buttons;
        collectButtons(*row, buttons);
        found.append(FocusRow(std::move(buttons)));
    }
    return found;
}

void RAppBarBase::followFocus()
{
    QQuickItem *item = window() ? window()->activeFocusItem() : nullptr;
    if (item == this) {
        // Given to the bar as a whole, or left by a button that has gone; later, when that is over.
        QMetaObject::invokeMethod(this, &RAppBarBase::passFocus, Qt::QueuedConnection);
        return;
    }
    const Place place = placeOf(item);
    const Place placeBefore = std::exchange(m_focusPlace, place);
    if (m_focusedButton)
        m_focusedButton->removeEventFilter(this);
    auto *button = place == Place::Elsewhere ? nullptr : qobject_cast<RButtonBase *>(item);
    m_focusedButton = button;
    if (!button)
        return;
    button->installEventFilter(this);
    planAgain();
    const bool isByTab = button->focusReason() == Qt::TabFocusReason || button->focusReason() == Qt::BacktabFocusReason;
    RButtonBase *entry = buttonsAt(place).entry(isMirrored());
    // Later, since Qt sets the focus once more when it is back from here.
    if (isByTab && place != placeBefore && entry != button && entry)
        QMetaObject::invokeMethod(
            entry, [entry] { entry->forceActiveFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
}

void RAppBarBase::passFocus()
{
    if (!window() || window()->activeFocusItem() != this)
        return;
    RButtonBase *entry = buttonsAt(m_focusPlace).entry(isMirrored());
    if (!entry)
        entry = buttonsAt(Place::MainRow).entry(isMirrored());
    if (entry)
        entry->forceActiveFocus(Qt::OtherFocusReason);
}

bool RAppBarBase::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_focusedButton && event->type() == QEvent::KeyPress)
        return handleKey(*static_cast<QKeyEvent *>(event));
    return QQuickToolBar::eventFilter(watched, event);
}

bool RAppBarBase::handleKey(const QKeyEvent &event)
{
    const FocusRow row = buttonsAt(m_focusPlace);
    if (FocusRow::isExit(event))
        return row.leave(*m_focusedButton, event);
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    RButtonBase *next = row.buttonAt(event.key(), m_focusedButton, isMirrored());
    if (event.key() == Qt::Key_Down && m_focusPlace == Place::MainRow)
        next = buttonsAt(Place::SubRow).entry(isMirrored());
    else if (event.key() == Qt::Key_Up && m_focusPlace == Place::SubRow)
        next = buttonsAt(Place::MainRow).entry(isMirrored());
    if (!next)
        return false;
    next->forceActiveFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace tamble::client
