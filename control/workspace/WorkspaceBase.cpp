#include "workspace/WorkspaceBase.h"

#include "pointer/RMouseDetection.h"
#include "workspace/ItemMove.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <QtCore/QMetaMethod>
#include <QtCore/private/qmetaobject_p.h>
#include <QtGui/QAccessible>
#include <QtQuick/private/qquickitem_p.h>

#include <cmath>
#include <utility>

// The items of a workspace, its selection, and what gestures make of them.

namespace tamble::client {

namespace {

template <typename Value>
QVariantMap textMap(const QHash<QUuid, Value> &values)
{
    QVariantMap map;
    for (auto value = values.begin(); value != values.end(); ++value)
        map.insert(value.key().toString(QUuid::WithoutBraces), value.value());
    return map;
}

// QObject's public question for listeners looks the signal up anew each time, which counts with thousands of items.
template <typename Signal>
uint signalIndexOf(Signal signal)
{
    return uint(QMetaObjectPrivate::signalIndex(QMetaMethod::fromSignal(signal)));
}

} // namespace

WorkspaceBase::WorkspaceBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_detection(new RMouseDetection(this))
    , m_plane(new QQuickItem(this))
    , m_ownSelection(new RWorkspaceSelection(this))
    , m_items(std::make_unique<WorkspaceItems>(*this))
    , m_input(std::make_unique<WorkspaceInput>(*this))
{
    QAccessible::installActivationObserver(this);
    setClip(true);
    setActiveFocusOnTab(true);
    m_plane->setTransformOrigin(TopLeft);
    // The canvas is one stop of the Tab key, whatever lies on it; see followFocus(). (Qt would pass over an item all of
    // whose children are such fences; the detection is none.)
    QQuickItemPrivate::get(m_plane)->isTabFence = true;
    m_ownSelection->m_workspaces.append(this);
    connect(m_detection, &RMouseDetection::containsMouseChanged, this, &WorkspaceBase::updatePointerInside);
    const auto follow = [this] { setPointer(QPointF(m_detection->mouseX(), m_detection->mouseY())); };
    connect(m_detection, &RMouseDetection::mouseXChanged, this, follow);
    connect(m_detection, &RMouseDetection::mouseYChanged, this, follow);
    updateInput();
    placePlane();
    tellSheet();
}

WorkspaceBase::~WorkspaceBase()
{
    blockSignals(true);
    disconnect(m_focusWatch);
    m_detection->disconnect(this);
    QAccessible::removeActivationObserver(this);
    m_input.reset();
    leaveSelection();
    selection()->m_workspaces.removeOne(this);
    m_items.reset();
}

QQmlListProperty<QObject> WorkspaceBase::content()
{
    return QQuickItemPrivate::get(m_plane)->data();
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

void WorkspaceBase::setInteractive(bool interactive)
{
    if (std::exchange(m_interactive, interactive) == interactive)
        return;
    const QPointer<WorkspaceBase> self(this);
    cancelGesture();
    if (!self)
        return;
    updateInput();
    setHovered(false);
    if (self)
        Q_EMIT interactiveChanged();
}

// Items.

void WorkspaceBase::addItem(WorkspaceItemBase &item)
{
    if (!m_items->add(item))
        return;
    item.m_workspace = this;
    item.setUnit(m_view.unit());
    m_items->place(item);
    polish();
    tellItemsLater();
    static const uint added = signalIndexOf(&WorkspaceBase::itemAdded);
    const QPointer<WorkspaceBase> heard = QQuickItemPrivate::get(this)->isSignalConnected(added) ? this : nullptr;
    const QUuid id = heard ? item.itemId() : QUuid();
    Q_EMIT item.workspaceChanged();
    if (heard)
        Q_EMIT itemAdded(id.toString(QUuid::WithoutBraces));
}

void WorkspaceBase::removeItem(WorkspaceItemBase &item)
{
    const QPointer<WorkspaceBase> self(this);
    const QPointer<WorkspaceItemBase> going(&item);
    static const uint removed = signalIndexOf(&WorkspaceBase::itemRemoved);
    const bool isHeard = QQuickItemPrivate::get(this)->isSignalConnected(removed);
    const QUuid id = isHeard ? item.itemId() : QUuid();
    if (m_move)
        m_move->itemGoes(item);
    if (m_hoveredItem == &item)
        m_hoveredItem = nullptr;
    const bool wasCurrent = m_currentItem == &item;
    if (wasCurrent)
        m_currentItem = nullptr;
    m_items->remove(item);
    item.m_workspace = nullptr;
    tellItemsLater();

    if (item.selected())
        selection()->itemsGo({&item});
    if (going)
        item.leaveWorkspace();
    if (self && wasCurrent)
        Q_EMIT currentItemChanged();
    if (self && isHeard)
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

QList<WorkspaceItemBase *> WorkspaceBase::selectableIn(const QRectF &area, bool contained) const
{
    auto items = m_items->stacked(contained ? m_items->containedIn(area) : m_items->touching(area));
    items.removeIf([](const WorkspaceItemBase *item) { return !item->isSelectable(); });
    return items;
}

std::vector<QRectF> WorkspaceBase::restingRectsIn(const QRectF &area) const
{
    std::vector<QRectF> rects;
    for (const WorkspaceItemBase *item : m_items->touching(area)) {
        if (!item->moving())
            rects.push_back(item->planeRect());
    }
    return rects;
}

QHash<QUuid, QPointF> WorkspaceBase::positions() const
{
    QHash<QUuid, QPointF> positions;
    for (const WorkspaceItemBase *item : m_items->all())
        positions.insert(item->itemId(), item->planePosition());
    return positions;
}

QHash<QUuid, QRectF> WorkspaceBase::geometries() const
{
    QHash<QUuid, QRectF> geometries;
    for (const WorkspaceItemBase *item : m_items->all())
        geometries.insert(item->itemId(), item->planeRect());
    return geometries;
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
    const double reach = pixels / m_view.scale();
    const QRectF around(point - QPointF(reach, reach) / 2.0, QSizeF(reach, reach));
    for (WorkspaceItemBase *item : m_items->touching(around)) {
        if (item->selected() && item->canBeResized() && around.contains(item->planeRect().bottomRight()))
            return item;
    }
    return nullptr;
}

// Gestures.

void WorkspaceBase::cancelGesture()
{
    m_input->cancel();
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

void WorkspaceBase::tellMoving(const ItemMove &move)
{
    static const QMetaMethod moving = QMetaMethod::fromSignal(&WorkspaceBase::itemsMoving);
    if (isSignalConnected(moving))
        Q_EMIT itemsMoving(move.positions());
}

void WorkspaceBase::tellMoved(const QHash<QUuid, QPointF> &before, const QHash<QUuid, QPointF> &after,
                              const QString &cause)
{
    const QPointer<WorkspaceBase> self(this);
    Q_EMIT positionsCommitted(before, after);
    if (self)
        Q_EMIT itemsMoved(textMap(before), textMap(after), cause);
}

void WorkspaceBase::tellResized(const QHash<QUuid, QRectF> &before, const QHash<QUuid, QRectF> &after)
{
    const QPointer<WorkspaceBase> self(this);
    Q_EMIT geometriesCommitted(before, after);
    if (self)
        Q_EMIT itemsResized(textMap(before), textMap(after));
}

} // namespace tamble::client
