#include "workspace/WorkspaceBase.h"

#include "base/Ancestor.h"
#include "workspace/Arrangement.h"
#include "workspace/HeardSignal.h"
#include "workspace/ItemMove.h"
#include "workspace/Snapping.h"
#include "workspace/WorksheetBase.h"
#include "workspace/WorkspaceEdits.h"
#include "workspace/WorkspaceFocus.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"
#include "workspace/WorkspaceKeys.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtQuick/private/qquickitem_p.h>

#include <utility>

namespace tamble::client {

namespace {

// Pixels around the viewport within which items are drawn, for their frames and marks.
constexpr double viewMargin = 16.0;
constexpr double leastDetailedZoom = 0.4;

} // namespace

WorkspaceBase::WorkspaceBase(QQuickItem *parent)
    : WorkspaceSurface(parent)
    , m_ownSelection(new RWorkspaceSelection(this))
    , m_items(std::make_unique<WorkspaceItems>(*this))
    , m_input(std::make_unique<WorkspaceInput>(*this))
    , m_focus(std::make_unique<WorkspaceFocus>(*this))
    , m_keys(std::make_unique<WorkspaceKeys>(*this, *m_input, *m_focus))
{
    QAccessible::installActivationObserver(this);
    setClip(true);
    setActiveFocusOnTab(true);
    m_ownSelection->m_workspaces.append(this);
    tellSheet();
}

WorkspaceBase::~WorkspaceBase()
{
    blockSignals(true);
    QAccessible::removeActivationObserver(this);
    m_input.reset();
    leaveSelection();
    selection()->m_workspaces.removeOne(this);
    m_items.reset();
}

QQmlListProperty<QObject> WorkspaceBase::content()
{
    return QQuickItemPrivate::get(plane())->data();
}

void WorkspaceBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    const QPointer<WorkspaceBase> self(this);
    if (readOnly)
        cancelGesture();
    if (self)
        Q_EMIT readOnlyChanged();
}

// Items.

void WorkspaceBase::addItem(WorkspaceItemBase &item)
{
    if (!m_items->add(item))
        return;
    item.m_workspace = this;
    item.setUnit(unit());
    m_items->place(item);
    polish();
    tellItemsLater();
    const QPointer<WorkspaceBase> heard = isHeard<&WorkspaceBase::itemAdded>(*this) ? this : nullptr;
    const QUuid id = heard ? item.itemId() : QUuid();
    Q_EMIT item.workspaceChanged();
    if (heard)
        Q_EMIT itemAdded(id.toString(QUuid::WithoutBraces));
}

void WorkspaceBase::removeItem(WorkspaceItemBase &item)
{
    const QPointer<WorkspaceBase> self(this);
    const QPointer<WorkspaceItemBase> going(&item);
    const bool isTold = isHeard<&WorkspaceBase::itemRemoved>(*this);
    const QUuid id = isTold ? item.itemId() : QUuid();
    if (m_move)
        m_move->itemGoes(item);
    if (m_hoveredItem == &item)
        m_hoveredItem = nullptr;
    const bool wasCurrent = m_focus->forget(item);
    m_items->remove(item);
    item.m_workspace = nullptr;
    tellItemsLater();

    if (item.selected())
        selection()->itemsGo({&item});
    if (going)
        item.leaveWorkspace();
    if (self && wasCurrent)
        Q_EMIT currentItemChanged();
    if (self && isTold)
        Q_EMIT itemRemoved(id.toString(QUuid::WithoutBraces));
}

void WorkspaceBase::placeItem(WorkspaceItemBase &item)
{
    m_items->place(item);
    polish();
    if (!item.selected())
        return;
    if (item.isShownByItself()) {
        selection()->geometryChange();
        return;
    }
    if (m_move)
        m_move->itemGoes(item);
    item.endMove();
    selection()->itemsGo({&item});
}

// Of an item on a hidden workspace nobody tells that it is hidden itself.
void WorkspaceBase::placeAllItems()
{
    m_items->placeAll();
    polish();
    auto hidden = selectedHere();
    hidden.removeIf([](const WorkspaceItemBase *item) { return item->isShownByItself(); });
    selection()->itemsGo(hidden);
}

// Once for all items of a page, since pages read the list when they are told.
void WorkspaceBase::tellItemsLater()
{
    if (std::exchange(m_willTellItems, true))
        return;
    const auto tell = [this] {
        m_willTellItems = false;
        Q_EMIT itemsChanged();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

QList<QObject *> WorkspaceBase::items() const
{
    const auto items = m_items->stacked(m_items->all());
    return QList<QObject *>(items.begin(), items.end());
}

QObject *WorkspaceBase::itemById(const QString &id) const
{
    return m_items->byId(QUuid(id));
}

QObject *WorkspaceBase::itemAt(const QPointF &point) const
{
    return m_items->at(point);
}

QList<QObject *> WorkspaceBase::itemsIn(const QRectF &rect, bool contained) const
{
    const QRectF area = rect.normalized();
    const auto items = m_items->stacked(contained ? m_items->containedIn(area) : m_items->touching(area));
    return QList<QObject *>(items.begin(), items.end());
}

QHash<QUuid, QPointF> WorkspaceBase::positions() const
{
    return m_items->positions();
}

QHash<QUuid, QRectF> WorkspaceBase::geometries() const
{
    return m_items->geometries();
}

// The selection.

void WorkspaceBase::setSelection(RWorkspaceSelection *selection)
{
    RWorkspaceSelection *before = this->selection();
    RWorkspaceSelection *after = selection ? selection : m_ownSelection;
    if (before == after)
        return;
    const QPointer<WorkspaceBase> self(this);
    cancelGesture();
    if (!self)
        return;
    leaveSelection();
    if (!self)
        return;
    before->m_workspaces.removeOne(this);
    m_selection = after == m_ownSelection ? nullptr : after;
    after->m_workspaces.append(this);
    Q_EMIT selectionChanged();
}

void WorkspaceBase::leaveSelection()
{
    selection()->itemsGo(selectedHere());
}

void WorkspaceBase::selectionGoes(const RWorkspaceSelection *selection)
{
    if (selection == m_ownSelection)
        return;
    m_selection = nullptr;
    m_ownSelection->m_workspaces.append(this);
    Q_EMIT selectionChanged();
}

QList<WorkspaceItemBase *> WorkspaceBase::selectedHere() const
{
    auto items = selection()->selected();
    items.removeIf([this](const WorkspaceItemBase *item) { return item->workspace() != this; });
    return items;
}

QList<WorkspaceItemBase *> WorkspaceBase::selectedToMove() const
{
    if (m_readOnly)
        return {};
    auto items = selectedHere();
    items.removeIf([](const WorkspaceItemBase *item) { return !item->canBeMoved(); });
    return items;
}

WorkspaceItemBase *WorkspaceBase::itemWithGripAt(const QPointF &point, double pixels) const
{
    if (m_readOnly)
        return nullptr;
    const double reach = pixels / view().scale();
    const QRectF around(point - QPointF(reach, reach) / 2.0, QSizeF(reach, reach));
    for (WorkspaceItemBase *item : m_items->touching(around)) {
        if (item->selected() && item->canBeResized() && around.contains(item->planeRect().bottomRight()))
            return item;
    }
    return nullptr;
}

// Gestures.

void WorkspaceBase::zoomToFit()
{
    const auto items = m_items->toRead();
    if (items.isEmpty())
        fit(planeRect(), maximumZoom());
    else
        fitItems(items);
}

void WorkspaceBase::zoomToSelection()
{
    const auto items = selectedHere();
    if (!items.isEmpty())
        fitItems(items);
}

void WorkspaceBase::fitItems(const QList<WorkspaceItemBase *> &items)
{
    std::vector<QRectF> rects;
    for (const WorkspaceItemBase *item : items)
        rects.push_back(item->planeRect());
    fit(boundsOf(rects), items.size() == 1 ? 1.0 : maximumZoom());
}

void WorkspaceBase::moveItems(const QVariantMap &positions)
{
    putItems(*this, positions);
}

void WorkspaceBase::resizeItems(const QVariantMap &geometries)
{
    putRects(*this, geometries);
}

void WorkspaceBase::align(int edge)
{
    alignItems(*this, Qt::Alignment(edge));
}

void WorkspaceBase::distribute(int orientation)
{
    distributeItems(*this, Qt::Orientation(orientation));
}

void WorkspaceBase::nudge(qreal dx, qreal dy)
{
    if (qIsFinite(dx) && qIsFinite(dy) && (!m_move || m_input->nudge().isUnderWay()))
        m_input->nudge().step(QPointF(dx, dy));
}

void WorkspaceBase::finishNudge()
{
    m_input->nudge().finish();
}

bool WorkspaceBase::endGestures()
{
    const QPointer<WorkspaceBase> self(this);
    finishNudge();
    if (self)
        cancelGesture();
    return self;
}

void WorkspaceBase::setMove(ItemMove *move)
{
    if (std::exchange(m_move, move) == move)
        return;
    const QPointer<WorkspaceBase> self(this);
    Q_EMIT movingChanged();
    if (self)
        Q_EMIT movingIdsChanged();
}

QStringList WorkspaceBase::movingIds() const
{
    return m_move ? m_move->ids() : QStringList();
}

void WorkspaceBase::showGuides(const std::vector<Guide> &guides)
{
    QVariantList list;
    for (const Guide &guide : guides)
        list.append(QVariantMap{{QStringLiteral("orientation"), int(guide.orientation)},
                                {QStringLiteral("position"), guide.position}});
    if (m_guides == list)
        return;
    m_guides = list;
    Q_EMIT guidesChanged();
}

void WorkspaceBase::showRubberBand(const std::optional<QRectF> &band)
{
    if (m_rubberBand == band)
        return;
    const bool wasActive = rubberBandActive();
    m_rubberBand = band;
    const QPointer<WorkspaceBase> self(this);
    Q_EMIT rubberBandRectChanged();
    if (self && wasActive != band.has_value())
        Q_EMIT rubberBandActiveChanged();
}

// What Qt tells.

void WorkspaceBase::componentComplete()
{
    WorkspaceSurface::componentComplete();
    if (QAccessible::isActive())
        speak();
}

void WorkspaceBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    WorkspaceSurface::itemChange(change, data);
    const bool isGone = change == ItemSceneChange ||
                        ((change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) && !data.boolValue);
    const QPointer<WorkspaceBase> self(this);
    if (change == ItemSceneChange)
        m_focus->setWindow(data.window);
    if (isGone)
        cancelGesture();
    if (!self)
        return;
    if (change == ItemVisibleHasChanged && data.boolValue)
        placeAllItems();
    if (change == ItemParentHasChanged || change == ItemSceneChange) {
        tellSheet();
        polish();
    }
}

// Children of its own a page notices by itself, but not what is put into them.
void WorkspaceBase::tellSheet()
{
    for (auto *sheet = nearestAncestor<WorksheetBase>(*this); sheet; sheet = nearestAncestor<WorksheetBase>(*sheet))
        sheet->seekWorkspace();
}

void WorkspaceBase::unitChange()
{
    m_items->setUnit(unit());
}

void WorkspaceBase::updatePolish()
{
    const double margin = viewMargin / view().scale();
    const QPointer<WorkspaceBase> self(this);
    m_items->showIn(view().seen().adjusted(-margin, -margin, margin, margin), zoom() >= leastDetailedZoom);
    if (self)
        hoverChange();
}

void WorkspaceBase::hoverChange()
{
    if (m_move)
        return;
    WorkspaceItemBase *hovered = isHovered() ? m_items->at(pointerPosition()) : nullptr;
    WorkspaceItemBase *before = std::exchange(m_hoveredItem, hovered);
    if (before == hovered)
        return;
    const QPointer<WorkspaceItemBase> entered = hovered;
    if (before)
        before->setState(&WorkspaceItemBase::m_hovered, false, &WorkspaceItemBase::hoveredChanged);
    if (entered)
        entered->setState(&WorkspaceItemBase::m_hovered, true, &WorkspaceItemBase::hoveredChanged);
}

bool WorkspaceBase::event(QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !m_keys->overridesShortcut(static_cast<const QKeyEvent &>(*event)))
        return WorkspaceSurface::event(event);
    event->accept();
    return true;
}

void WorkspaceBase::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(m_keys->press(*event));
}

void WorkspaceBase::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(m_keys->release(*event));
}

void WorkspaceBase::focusInEvent(QFocusEvent *event)
{
    WorkspaceSurface::focusInEvent(event);
    m_focus->update();
}

void WorkspaceBase::focusOutEvent(QFocusEvent *event)
{
    const QPointer<WorkspaceBase> self(this);
    WorkspaceSurface::focusOutEvent(event);
    holdSpace(false);
    finishNudge();
    if (self)
        m_focus->update();
}

QObject *WorkspaceBase::currentItem() const
{
    return m_focus->current();
}

void WorkspaceBase::setCurrentItem(WorkspaceItemBase *item)
{
    m_focus->setCurrent(item);
}

// Assistive tools.

QString WorkspaceBase::spokenName() const
{
    return tr("Workspace");
}

QList<QQuickItem *> WorkspaceBase::spokenOrder(const QList<QQuickItem *> &children) const
{
    QList<QQuickItem *> ordered;
    for (WorkspaceItemBase *item : m_items->toRead()) {
        if (item->inView() && children.contains(item))
            ordered.append(item);
    }
    for (QQuickItem *child : children) {
        if (!qobject_cast<WorkspaceItemBase *>(child))
            ordered.append(child);
    }
    return ordered;
}

void WorkspaceBase::accessibilityActiveChanged(bool active)
{
    if (active)
        speak();
}

void WorkspaceBase::speak()
{
    beginToSpeak(*this);
    for (WorkspaceItemBase *item : m_items->all()) {
        if (item->inView())
            item->speak();
    }
}

} // namespace tamble::client
