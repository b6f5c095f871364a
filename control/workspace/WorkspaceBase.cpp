#include "workspace/WorkspaceBase.h"

#include "pointer/RMouseDetection.h"
#include "workspace/ItemMove.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceInput.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <QtCore/QMetaMethod>
#include <QtGui/QAccessible>
#include <QtQuick/private/qquickitem_p.h>

#include <cmath>
#include <utility>

// What a workspace shows: its view, its items, its selection, and what gestures make of them.

namespace tamble::client {

namespace {

// Pixels around the viewport within which items are drawn, for their frames and marks.
constexpr double viewMargin = 16.0;
constexpr double leastDetailedZoom = 0.4;

template <typename Value>
QVariantMap textMap(const QHash<QUuid, Value> &values)
{
    QVariantMap map;
    for (auto value = values.begin(); value != values.end(); ++value)
        map.insert(value.key().toString(QUuid::WithoutBraces), value.value());
    return map;
}

} // namespace

/// Tells a workspace that somebody has begun to listen to assistive tools.
class WorkspaceBase::Ears : public QAccessible::ActivationObserver
{
public:
    explicit Ears(WorkspaceBase &workspace)
        : m_workspace(workspace)
    {
        QAccessible::installActivationObserver(this);
    }
    ~Ears() override { QAccessible::removeActivationObserver(this); }
    void accessibilityActiveChanged(bool active) override
    {
        if (active)
            m_workspace.speak();
    }

private:
    WorkspaceBase &m_workspace;
};

WorkspaceBase::WorkspaceBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_detection(new RMouseDetection(this))
    , m_plane(new QQuickItem(this))
    , m_ownSelection(new RWorkspaceSelection(this))
    , m_items(std::make_unique<WorkspaceItems>(*this))
    , m_input(std::make_unique<WorkspaceInput>(*this))
    , m_ears(std::make_unique<Ears>(*this))
{
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
    m_detection->disconnect(this);
    m_ears.reset();
    m_input.reset();
    leaveSelection();
    selection()->m_workspaces.removeOne(this);
    m_items.reset();
}

QQmlListProperty<QObject> WorkspaceBase::content()
{
    return QQuickItemPrivate::get(m_plane)->data();
}

// The view.

template <typename Change>
void WorkspaceBase::changeView(Change change)
{
    const PlaneView before = m_view;
    change(m_view);
    if (isComponentComplete())
        m_view.clamp();
    if (before == m_view)
        return;
    placePlane();
    const QPointer<WorkspaceBase> self(this);
    const PlaneView now = m_view;
    if (before.unit() != now.unit())
        m_items->setUnit(now.unit());
    const auto tellIf = [&self](bool hasChanged, void (WorkspaceBase::*signal)()) {
        if (hasChanged && self)
            Q_EMIT(self->*signal)();
    };
    tellIf(before.plane() != now.plane(), &WorkspaceBase::planeRectChanged);
    tellIf(before.unit() != now.unit(), &WorkspaceBase::unitChanged);
    tellIf(before.minimumZoom() != now.minimumZoom(), &WorkspaceBase::minimumZoomChanged);
    tellIf(before.maximumZoom() != now.maximumZoom(), &WorkspaceBase::maximumZoomChanged);
    tellIf(before.zoom() != now.zoom(), &WorkspaceBase::zoomChanged);
    tellIf(before.view().x() != now.view().x(), &WorkspaceBase::viewXChanged);
    tellIf(before.view().y() != now.view().y(), &WorkspaceBase::viewYChanged);
    tellIf(self && self->m_pointerInside, &WorkspaceBase::pointerPositionChanged);
    if (!self)
        return;
    polish();
    m_input->viewChange();
}

void WorkspaceBase::placePlane()
{
    m_plane->setPosition(-m_view.view() * m_view.scale());
    m_plane->setScale(m_view.zoom());
    const QPointF corner = m_view.plane().bottomRight() * m_view.unit();
    m_plane->setSize(QSizeF(corner.x(), corner.y()));
}

void WorkspaceBase::setPlaneRect(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.setPlane(rect); });
}

void WorkspaceBase::setUnit(qreal unit)
{
    changeView([unit](PlaneView &view) { view.setUnit(unit); });
}

void WorkspaceBase::setZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setZoom(zoom); });
}

void WorkspaceBase::setMinimumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMinimumZoom(zoom); });
}

void WorkspaceBase::setMaximumZoom(qreal zoom)
{
    changeView([zoom](PlaneView &view) { view.setMaximumZoom(zoom); });
}

void WorkspaceBase::setViewX(qreal x)
{
    changeView([x](PlaneView &view) { view.setView(QPointF(x, view.view().y())); });
}

void WorkspaceBase::setViewY(qreal y)
{
    changeView([y](PlaneView &view) { view.setView(QPointF(view.view().x(), y)); });
}

void WorkspaceBase::pan(const QPointF &pixels)
{
    changeView([&pixels](PlaneView &view) { view.pan(pixels); });
}

void WorkspaceBase::zoomTo(qreal factor, const QPointF &anchor)
{
    changeView([factor, &anchor](PlaneView &view) { view.zoomAbout(factor, anchor); });
}

void WorkspaceBase::ensureVisible(const QRectF &rect)
{
    changeView([&rect](PlaneView &view) { view.ensureVisible(rect); });
}

void WorkspaceBase::fit(const QRectF &rect, double mostZoom)
{
    changeView([&rect, mostZoom](PlaneView &view) { view.fit(rect, mostZoom); });
}

void WorkspaceBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    m_detection->setSize(newGeometry.size());
    changeView([&newGeometry](PlaneView &view) { view.setViewport(newGeometry.size()); });
}

void WorkspaceBase::componentComplete()
{
    QQuickItem::componentComplete();
    changeView([](PlaneView &) {});
    polish();
    if (QAccessible::isActive())
        speak();
}

void WorkspaceBase::updatePolish()
{
    const double margin = viewMargin / m_view.scale();
    const QPointer<WorkspaceBase> self(this);
    m_items->showIn(m_view.seen().adjusted(-margin, -margin, margin, margin), m_view.zoom() >= leastDetailedZoom);
    if (self)
        updateHovered();
}

// Settings.

void WorkspaceBase::setGridSize(qreal size)
{
    if (std::isfinite(size) && size >= 0.0 && std::exchange(m_gridSize, size) != size)
        Q_EMIT gridSizeChanged();
}

void WorkspaceBase::setSnapDistance(qreal pixels)
{
    if (std::isfinite(pixels) && std::exchange(m_snapDistance, pixels) != pixels)
        Q_EMIT snapDistanceChanged();
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
    static const QMetaMethod added = QMetaMethod::fromSignal(&WorkspaceBase::itemAdded);
    const QPointer<WorkspaceBase> heard = isSignalConnected(added) ? this : nullptr;
    const QUuid id = heard ? item.itemId() : QUuid();
    Q_EMIT item.workspaceChanged();
    if (heard)
        Q_EMIT itemAdded(id.toString(QUuid::WithoutBraces));
}

void WorkspaceBase::removeItem(WorkspaceItemBase &item)
{
    const QPointer<WorkspaceBase> self(this);
    const QPointer<WorkspaceItemBase> going(&item);
    static const QMetaMethod removed = QMetaMethod::fromSignal(&WorkspaceBase::itemRemoved);
    const bool isHeard = isSignalConnected(removed);
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

QObject *WorkspaceBase::currentItem() const
{
    return m_currentItem;
}

void WorkspaceBase::setCurrentItem(WorkspaceItemBase *item)
{
    if (m_currentItem == item || (item && item->workspace() != this))
        return;
    const QPointer<WorkspaceItemBase> before = std::exchange(m_currentItem, item);
    const QPointer<WorkspaceBase> self(this);
    if (before && before->workspace() == this)
        before->setState(&WorkspaceItemBase::m_keyFocus, false, &WorkspaceItemBase::keyFocusChanged);
    if (self)
        updateKeyFocus();
    if (self)
        Q_EMIT currentItemChanged();
}

void WorkspaceBase::updateKeyFocus()
{
    if (!m_currentItem)
        return;
    const QPointer<WorkspaceItemBase> item = m_currentItem;
    const bool hasFocus = hasActiveFocus();
    const bool hasChanged =
        item->setState(&WorkspaceItemBase::m_keyFocus, hasFocus, &WorkspaceItemBase::keyFocusChanged);
    if (hasChanged && hasFocus && item && QAccessible::isActive()) {
        item->speak();
        announce(*item, QAccessible::Focus);
    }
}

// Gestures.

void WorkspaceBase::cancelGesture()
{
    m_input->cancel();
}

SnapRules WorkspaceBase::snapRules(bool isSuspended) const
{
    SnapRules rules{m_view.plane()};
    if (m_snapToItems && !isSuspended)
        rules.distance = m_snapDistance / m_view.scale();
    if (m_snapToGrid && !isSuspended)
        rules.grid = m_gridSize;
    return rules;
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

void WorkspaceBase::speak()
{
    beginToSpeak(*this);
    for (WorkspaceItemBase *item : m_items->all()) {
        if (item->inView())
            item->speak();
    }
}

} // namespace tamble::client
