#include "workspace/RWorkspaceSelection.h"

#include "workspace/Arrangement.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtCore/QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace tamble::client {

namespace {

// Items and workspaces are silent from then on, and pages would be given null for them.
bool isBeingDestroyed(const WorkspaceItemBase &item)
{
    return item.signalsBlocked() || (item.workspace() && item.workspace()->signalsBlocked());
}

} // namespace

RWorkspaceSelection::RWorkspaceSelection(QObject *parent)
    : QObject(parent)
{}

RWorkspaceSelection::~RWorkspaceSelection()
{
    const QList<WorkspaceBase *> workspaces = std::exchange(m_workspaces, {});
    for (WorkspaceItemBase *item : std::exchange(m_items, {}))
        item->setState(&WorkspaceItemBase::m_selected, false, &WorkspaceItemBase::selectedChanged);
    for (WorkspaceBase *workspace : workspaces)
        workspace->selectionGoes(this);
}

QList<QObject *> RWorkspaceSelection::items() const
{
    return QList<QObject *>(m_items.begin(), m_items.end());
}

QStringList RWorkspaceSelection::ids() const
{
    QStringList ids;
    for (const WorkspaceItemBase *item : m_items)
        ids << item->itemId().toString(QUuid::WithoutBraces);
    return ids;
}

QObject *RWorkspaceSelection::current() const
{
    return m_current;
}

QRectF RWorkspaceSelection::boundingRect() const
{
    if (!std::exchange(m_isBoundingRectKnown, true)) {
        std::vector<QRectF> rects;
        for (const WorkspaceItemBase *item : m_items)
            rects.push_back(item->planeRect());
        m_boundingRect = boundsOf(rects);
    }
    return m_boundingRect;
}

void RWorkspaceSelection::geometryChange()
{
    m_isBoundingRectKnown = false;
    m_hasMoved = true;
    if (m_holds == 0)
        Q_EMIT boundingRectChanged();
}

void RWorkspaceSelection::holdGeometry()
{
    if (m_holds++ == 0)
        m_hasMoved = false;
}

void RWorkspaceSelection::releaseGeometry()
{
    if (--m_holds == 0 && m_hasMoved)
        Q_EMIT boundingRectChanged();
}

bool RWorkspaceSelection::isOwn(const WorkspaceItemBase *item) const
{
    return item && item->workspace() && item->workspace()->selection() == this;
}

void RWorkspaceSelection::select(QObject *item, Mode mode)
{
    auto *selected = qobject_cast<WorkspaceItemBase *>(item);
    if (isOwn(selected))
        apply({selected}, mode);
}

void RWorkspaceSelection::selectIds(const QStringList &ids, Mode mode)
{
    QList<WorkspaceItemBase *> items;
    for (const QString &id : ids) {
        for (const WorkspaceBase *workspace : std::as_const(m_workspaces)) {
            if (auto *item = static_cast<WorkspaceItemBase *>(workspace->itemById(id)))
                items.append(item);
        }
    }
    apply(items, mode);
}

bool RWorkspaceSelection::contains(QObject *item) const
{
    const auto *selected = qobject_cast<WorkspaceItemBase *>(item);
    return selected && selected->selected() && isOwn(selected);
}

void RWorkspaceSelection::clear()
{
    assign({}, nullptr);
}

void RWorkspaceSelection::apply(const QList<WorkspaceItemBase *> &items, Mode mode)
{
    QList<WorkspaceItemBase *> named;
    QSet<WorkspaceItemBase *> isNamed;
    for (WorkspaceItemBase *item : items) {
        if (isOwn(item) && item->isShownByItself() && !isNamed.contains(item)) {
            isNamed.insert(item);
            named.append(item);
        }
    }
    QList<WorkspaceItemBase *> target;
    if (mode != Replace) {
        const bool takesOut = mode == Toggle || mode == Remove;
        for (WorkspaceItemBase *item : std::as_const(m_items)) {
            if (!takesOut || !isNamed.contains(item))
                target.append(item);
        }
    }
    if (mode != Remove) {
        for (WorkspaceItemBase *item : std::as_const(named)) {
            if (mode == Replace || !item->selected())
                target.append(item);
        }
    }
    WorkspaceItemBase *touched = named.isEmpty() ? m_current : named.last();
    assign(target, touched);
}

void RWorkspaceSelection::assign(const QList<WorkspaceItemBase *> &items, WorkspaceItemBase *current)
{
    const QSet<WorkspaceItemBase *> wanted(items.begin(), items.end());
    Changed changed;
    for (WorkspaceItemBase *item : std::as_const(m_items)) {
        if (!wanted.contains(item))
            changed.append(item);
    }
    const qsizetype firstCome = changed.size();
    for (WorkspaceItemBase *item : items) {
        if (!item->selected())
            changed.append(item);
    }
    if (!wanted.contains(current))
        current = wanted.contains(m_current) ? m_current : (items.isEmpty() ? nullptr : items.last());
    settle(items, changed, firstCome, current);
}

void RWorkspaceSelection::settle(const QList<WorkspaceItemBase *> &items, const Changed &changed, qsizetype firstCome,
                                 WorkspaceItemBase *current)
{
    const bool hasOtherCurrent = std::exchange(m_current, current) != current;
    if (!changed.isEmpty()) {
        const qsizetype countBefore = std::exchange(m_items, items).size();
        for (qsizetype i = 0; i < changed.size(); ++i)
            changed[i]->m_selected = i >= firstCome;
        m_isBoundingRectKnown = false;
        tell(changed, firstCome, countBefore, hasOtherCurrent);
    } else if (hasOtherCurrent) {
        tellCurrent();
    }
}

// All is as it will be by now, since pages may do anything that answers, this selection's end included.
void RWorkspaceSelection::tell(const Changed &changed, qsizetype firstCome, qsizetype countBefore, bool hasOtherCurrent)
{
    const QPointer<RWorkspaceSelection> self(this);
    for (qsizetype i = 0; i < changed.size() && self; ++i) {
        const bool isSelected = i >= firstCome;
        if (!changed[i] || changed[i]->selected() != isSelected || isBeingDestroyed(*changed[i]))
            continue;
        changed[i]->lookChange();
        Q_EMIT changed[i]->selectedChanged();
        if (self && changed[i])
            Q_EMIT isSelected ? itemSelected(changed[i]) : itemDeselected(changed[i]);
    }
    const auto tellIf = [&self](bool is, void (RWorkspaceSelection::*signal)()) {
        if (is && self)
            Q_EMIT(self->*signal)();
    };
    const bool hasOtherCount = self && countBefore != m_items.size();
    const bool isOtherwiseEmpty = self && (countBefore == 0) != m_items.isEmpty();
    tellIf(true, &RWorkspaceSelection::itemsChanged);
    tellIf(true, &RWorkspaceSelection::idsChanged);
    tellIf(hasOtherCount, &RWorkspaceSelection::countChanged);
    tellIf(isOtherwiseEmpty, &RWorkspaceSelection::emptyChanged);
    tellIf(true, &RWorkspaceSelection::boundingRectChanged);
    if (hasOtherCurrent && self)
        tellCurrent();
    tellIf(true, &RWorkspaceSelection::selectionChanged);
}

void RWorkspaceSelection::tellCurrent()
{
    if (m_current && m_current->workspace())
        m_current->workspace()->setCurrentItem(m_current);
    Q_EMIT currentChanged();
}

void RWorkspaceSelection::itemsGo(const QList<WorkspaceItemBase *> &items)
{
    QList<WorkspaceItemBase *> staying = m_items;
    Changed going;
    for (WorkspaceItemBase *item : items) {
        if (staying.removeOne(item))
            going.append(item);
    }
    WorkspaceItemBase *last = staying.isEmpty() ? nullptr : staying.last();
    settle(staying, going, going.size(), items.contains(m_current) ? last : m_current);
}

} // namespace tamble::client
