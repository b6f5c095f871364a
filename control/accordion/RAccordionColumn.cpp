#include "accordion/RAccordionColumn.h"

#include "accordion/RAccordionSectionHeaderBase.h"
#include "base/FocusReason.h"

#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

qsizetype openCount(QQmlListProperty<RAccordionItemBase> *property)
{
    return static_cast<RAccordionColumn *>(property->object)->openSections().size();
}

RAccordionItemBase *openAt(QQmlListProperty<RAccordionItemBase> *property, qsizetype index)
{
    return static_cast<RAccordionColumn *>(property->object)->openSections().value(index);
}

} // namespace

RAccordionColumn::RAccordionColumn(QQuickItem *parent)
    : QQuickColumn(parent)
    , m_view(this)
    , m_drag(*this, m_view)
{}

RAccordionColumn::~RAccordionColumn()
{
    if (m_window)
        m_window->disconnect(this);
}

RAccordionColumn *RAccordionColumn::of(const QQuickItem *item)
{
    return item ? dynamic_cast<RAccordionColumn *>(item->parentItem()) : nullptr;
}

QList<RAccordionItemBase *> RAccordionColumn::sections() const
{
    QList<RAccordionItemBase *> found;
    for (QQuickItem *child : childItems()) {
        if (auto *item = dynamic_cast<RAccordionItemBase *>(child))
            found.append(item);
    }
    return found;
}

/// What the keys move between, from above.
QList<AccordionHeading *> RAccordionColumn::stops() const
{
    QList<AccordionHeading *> found;
    for (QQuickItem *child : childItems()) {
        const auto *item = dynamic_cast<RAccordionItemBase *>(child);
        AccordionHeading *heading = item ? item->header() : dynamic_cast<AccordionHeading *>(child);
        if (heading && heading->focusPolicy() != Qt::NoFocus && heading->isVisible() && heading->isEnabled())
            found.append(heading);
    }
    return found;
}

void RAccordionColumn::setExclusive(bool exclusive)
{
    if (std::exchange(m_isExclusive, exclusive) == exclusive)
        return;
    const QPointer<RAccordionColumn> guard(this);
    if (exclusive && isComponentComplete()) {
        const QList<RAccordionItemBase *> all = sections();
        const auto open = std::ranges::find_if(all, [](const auto *item) { return item->isExpanded(); });
        if (open != all.end())
            closeOthers(*open);
    }
    if (guard)
        Q_EMIT exclusiveChanged();
}

void RAccordionColumn::setReorderable(bool reorderable)
{
    if (std::exchange(m_isReorderable, reorderable) == reorderable)
        return;
    forEachSection([](RAccordionItemBase &item) { item.followAccordion(); });
    Q_EMIT reorderableChanged();
}

QQmlListProperty<RAccordionItemBase> RAccordionColumn::expandedItems()
{
    return {this, nullptr, openCount, openAt};
}

QList<RAccordionItemBase *> RAccordionColumn::openSections() const
{
    QList<RAccordionItemBase *> open = sections();
    open.removeIf([](const RAccordionItemBase *item) { return !item->isExpanded(); });
    return open;
}

/// Handlers of one section may take another one away.
void RAccordionColumn::forEachSection(const std::function<void(RAccordionItemBase &)> &act)
{
    QList<QPointer<RAccordionItemBase>> all;
    for (RAccordionItemBase *item : sections())
        all.append(item);
    for (const QPointer<RAccordionItemBase> &item : std::as_const(all)) {
        if (item)
            act(*item);
    }
}

void RAccordionColumn::expandAll()
{
    if (m_isExclusive)
        return;
    forEachSection([](RAccordionItemBase &item) {
        if (item.isExpandable())
            item.setExpanded(true);
    });
}

void RAccordionColumn::collapseAll()
{
    forEachSection([](RAccordionItemBase &item) {
        if (item.isExpandable())
            item.setExpanded(false);
    });
}

void RAccordionColumn::closeOthers(const RAccordionItemBase *open)
{
    const QPointer<const RAccordionItemBase> guard(open);
    forEachSection([&guard](RAccordionItemBase &item) {
        if (guard && &item != guard.get())
            item.setExpanded(false);
    });
}

void RAccordionColumn::tellExpanded(RAccordionItemBase &item)
{
    const QPointer<RAccordionColumn> guard(this);
    const QPointer<RAccordionItemBase> told(&item);
    if (item.isExpanded() && m_isExclusive)
        closeOthers(&item);
    if (!guard || !told)
        return;
    Q_EMIT expandedItemsChanged();
    if (!guard || !told || !isComponentComplete())
        return;
    if (item.isExpanded()) {
        m_toReveal = &item;
        polish();
        Q_EMIT itemExpanded(&item);
    } else {
        Q_EMIT itemCollapsed(&item);
    }
}

void RAccordionColumn::componentComplete()
{
    QQuickColumn::componentComplete();
    polish();
}

void RAccordionColumn::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickColumn::itemChange(change, data);
    switch (change) {
    case ItemChildAddedChange:
        fitWidth(*data.item);
        if (auto *item = dynamic_cast<RAccordionItemBase *>(data.item)) {
            item->followAccordion();
            Q_EMIT countChanged();
        }
        polish();
        break;
    case ItemChildRemovedChange:
        // What is removed may be half destroyed: whether it was a section is not asked.
        Q_EMIT countChanged();
        Q_EMIT expandedItemsChanged();
        polish();
        break;
    case ItemSceneChange:
        if (m_window)
            m_window->disconnect(this);
        m_window = data.window;
        if (m_window) {
            connect(m_window, &QQuickWindow::activeFocusItemChanged, this,
                    [this] { followFocus(m_window->activeFocusItem()); });
        }
        break;
    default:
        break;
    }
}

void RAccordionColumn::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickColumn::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() == oldGeometry.width())
        return;
    for (QQuickItem *child : childItems())
        fitWidth(*child);
}

void RAccordionColumn::fitWidth(QQuickItem &child)
{
    if (dynamic_cast<RAccordionItemBase *>(&child) || dynamic_cast<AccordionHeading *>(&child))
        child.setWidth(width());
}

void RAccordionColumn::updatePolish()
{
    hideByCaptions();
    QQuickColumn::updatePolish();
    keepTabStop();
    if (m_drag.isUnderWay())
        m_drag.follow();
    if (!m_toReveal)
        return;
    reveal(*m_toReveal);
    // It grows until it is open.
    const auto *section = dynamic_cast<RAccordionItemBase *>(m_toReveal.get());
    if (!section || !section->isMoving())
        m_toReveal = nullptr;
}

void RAccordionColumn::hideByCaptions()
{
    RAccordionSectionHeaderBase *caption = nullptr;
    for (QQuickItem *child : childItems()) {
        if (auto *next = dynamic_cast<RAccordionSectionHeaderBase *>(child)) {
            caption = next;
        } else if (auto *item = dynamic_cast<RAccordionItemBase *>(child)) {
            const bool hides = caption && caption->hidesItems();
            if (hides && item->hasActiveFocus())
                caption->forceActiveFocus(Qt::OtherFocusReason);
            item->setHiddenByCaption(hides);
        }
    }
}

bool RAccordionColumn::moveFocus(const AccordionHeading &from, int key)
{
    const QList<AccordionHeading *> all = stops();
    const qsizetype here = all.indexOf(&from);
    if (here < 0)
        return false;
    qsizetype next = 0;
    switch (key) {
    case Qt::Key_Up:
        next = std::max<qsizetype>(here - 1, 0);
        break;
    case Qt::Key_Down:
        next = std::min(here + 1, all.size() - 1);
        break;
    case Qt::Key_Home:
        break;
    case Qt::Key_End:
        next = all.size() - 1;
        break;
    default:
        return false;
    }
    all[next]->forceActiveFocus(Qt::OtherFocusReason);
    return true;
}

/// Tab comes back to the section that it has left.
void RAccordionColumn::followFocus(QQuickItem *focused)
{
    if (!focused || !isAncestorOf(focused))
        return;
    QQuickItem *child = focused;
    while (child->parentItem() != this)
        child = child->parentItem();
    const auto *item = dynamic_cast<RAccordionItemBase *>(child);
    AccordionHeading *heading = item ? item->header() : dynamic_cast<AccordionHeading *>(child);
    if (heading && heading->isVisible()) {
        m_tabStop = heading;
        keepTabStop();
    }
    // What is pressed stays under the pointer.
    if (!isFocusByMouse(*this))
        ensureVisible(focused);
}

void RAccordionColumn::keepTabStop()
{
    const QList<AccordionHeading *> all = stops();
    if (!all.contains(m_tabStop.get()))
        m_tabStop = all.isEmpty() ? nullptr : all.constFirst();
    for (AccordionHeading *heading : all)
        heading->setActiveFocusOnTab(heading == m_tabStop);
}

void RAccordionColumn::ensureVisible(QQuickItem *item)
{
    if (!item || !isAncestorOf(item))
        return;
    m_toReveal = item;
    polish();
}

void RAccordionColumn::reveal(const QQuickItem &item)
{
    if (!item.isVisible() || !isAncestorOf(&item))
        return;
    m_view.find();
    m_view.reveal(mapRectFromItem(&item, QRectF(QPointF(), item.size())), {});
}

bool RAccordionColumn::requestMove(RAccordionItemBase &item, int way)
{
    const QList<RAccordionItemBase *> all = sections();
    const int from = int(all.indexOf(&item));
    const int to = from + way;
    if (from < 0 || to < 0 || to >= all.size())
        return false;
    m_toReveal = &item;
    Q_EMIT itemMoved(from, to);
    return true;
}

void RAccordionColumn::dragTo(RAccordionItemBase &item, const QPointF &scenePoint)
{
    m_drag.moveTo(item, scenePoint);
}

bool RAccordionColumn::drop(const RAccordionItemBase &item)
{
    const std::optional<InsertionPlace> place = m_drag.drop();
    const int from = int(sections().indexOf(&item));
    if (!place || from < 0)
        return false;
    const int to = movedTo(from, place->gap);
    if (to != from)
        Q_EMIT itemMoved(from, to);
    return to != from;
}

void RAccordionColumn::endDrag()
{
    m_drag.end();
}

} // namespace tamble::client
