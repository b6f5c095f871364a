#include "flyouts/FloatingPane.h"

#include "screen/RScreen.h"

#include <QtCore/QHash>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

constexpr qreal snapReach = 8.0; // these are density-independent units
constexpr qreal keyStep = 8.0;
constexpr QSizeF leastSize(160.0, 80.0);
constexpr QSizeF reachableHeader(64.0, 32.0);

/// The arrangements that are kept by key.
QHash<QString, FloatingPane::Arrangement> &memory()
{
    static QHash<QString, FloatingPane::Arrangement> kept;
    return kept;
}

QPointF directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1.0, 0.0};
    case Qt::Key_Right:
        return {1.0, 0.0};
    case Qt::Key_Up:
        return {0.0, -1.0};
    case Qt::Key_Down:
        return {0.0, 1.0};
    default:
        return {};
    }
}

QQuickItem *layerOf(const QQuickItem &pane)
{
    for (QQuickItem *item = pane.parentItem(); item; item = item->parentItem()) {
        if (qobject_cast<RScreen *>(item)) {
            auto *layer = item->property("flyoutLayer").value<QQuickItem *>();
            return layer ? layer : item;
        }
    }
    return pane.parentItem();
}

} // namespace

FloatingPane::FloatingPane(QQuickItem *parent)
    : TitledPane(parent)
{
    followLayer();
}

// The layer may get another size as this leaves it.
FloatingPane::~FloatingPane()
{
    if (m_layer)
        m_layer->disconnect(this);
}

void FloatingPane::setMovable(bool movable)
{
    if (m_isMovable == movable)
        return;
    m_isMovable = movable;
    Q_EMIT movableChanged();
}

QSizeF FloatingPane::layerSize() const
{
    return m_layer ? m_layer->size() : QSizeF(0.0, 0.0);
}

bool FloatingPane::enterLayer()
{
    QQuickItem *layer = layerOf(*this);
    if (layer)
        setParentItem(layer);
    return layer;
}

void FloatingPane::raise()
{
    if (!m_layer)
        return;
    QQuickItem *topmost = m_layer->childItems().constLast();
    if (topmost != this)
        stackAfter(topmost);
}

QList<FloatingPane *> FloatingPane::shownIn(const QQuickItem &layer)
{
    QList<FloatingPane *> panes;
    for (QQuickItem *child : layer.childItems()) {
        auto *pane = qobject_cast<FloatingPane *>(child);
        if (pane && pane->m_isShown)
            panes.append(pane);
    }
    return panes;
}

void FloatingPane::followLayer()
{
    if (m_layer == parentItem())
        return;
    if (m_layer)
        m_layer->disconnect(this);
    m_layer = parentItem();
    if (m_layer) {
        const auto onSize = [this] {
            Q_EMIT layerSizeChanged();
            arrange();
        };
        connect(m_layer, &QQuickItem::widthChanged, this, onSize);
        connect(m_layer, &QQuickItem::heightChanged, this, onSize);
    }
    Q_EMIT layerSizeChanged();
}

void FloatingPane::itemChange(ItemChange change, const ItemChangeData &data)
{
    TitledPane::itemChange(change, data);
    if (change == ItemParentHasChanged)
        followLayer();
}

bool FloatingPane::setShown(bool shown)
{
    if (m_isShown == shown)
        return false;
    if (shown)
        m_step = freeStep();
    m_isShown = shown;
    return true;
}

/// The first one at which no other pane stands that was not placed.
int FloatingPane::freeStep() const
{
    const QList<FloatingPane *> others = shownIn(*m_layer);
    const auto isTaken = [&](int step) {
        return std::any_of(others.begin(), others.end(), [&](const auto *other) {
            return !other->m_arrangement.isPlaced && !other->m_opener && !other->m_pagePlace && other->m_step == step;
        });
    };
    int step = 0;
    while (isTaken(step))
        ++step;
    return step;
}

void FloatingPane::recall(QQuickItem *opener, Qt::Edge edge)
{
    m_opener = opener;
    m_openerEdge = edge;
    const auto kept = memory().constFind(m_rememberKey);
    if (!m_rememberKey.isEmpty() && kept != memory().constEnd())
        m_arrangement = *kept;
}

void FloatingPane::remember() const
{
    if (!m_rememberKey.isEmpty())
        memory().insert(m_rememberKey, m_arrangement);
}

void FloatingPane::setArrangement(const Arrangement &arrangement)
{
    const bool hadSize = m_arrangement.givenSize.has_value();
    m_arrangement = arrangement;
    if (hadSize && !m_arrangement.givenSize) {
        // Unlike setWidth() and setHeight(), this leaves bindings of the page in force.
        setSize(m_ownSize);
        if (m_ownSize.width() <= 0.0)
            resetWidth();
        if (m_ownSize.height() <= 0.0)
            resetHeight();
    }
    arrange();
}

void FloatingPane::arrange()
{
    if (!m_isShown || !m_layer || m_isArranging)
        return;
    const QScopedValueRollback guard(m_isArranging, true);
    if (const auto &given = m_arrangement.givenSize) {
        const QSizeF bounded = given->boundedTo(layerSize()).expandedTo(leastSize * m_unit);
        setSize(isCollapsed() ? QSizeF(bounded.width(), headerHeight()) : bounded);
    }
    if (m_arrangement.isPlaced)
        setPosition(standing(m_arrangement.place, shownSize(), layerSize(), reachableHeader * m_unit));
    else
        setPosition(inside(firstPlace(), shownSize(), layerSize()));
}

/// Where it belongs until the user moves it.
QPointF FloatingPane::firstPlace() const
{
    if (m_opener) {
        const QRectF area = m_layer->mapRectFromItem(m_opener, QRectF(QPointF(), m_opener->size()));
        return besideArea(area, m_openerEdge, shownSize(), layerSize());
    }
    const qreal step = m_step * headerHeight();
    return m_pagePlace.value_or(centred(shownSize(), layerSize()) + QPointF(step, step));
}

QSizeF FloatingPane::shownSize() const
{
    return {width(), isCollapsed() ? headerHeight() : height()};
}

QList<QRectF> FloatingPane::neighbours() const
{
    QList<QRectF> rects;
    for (const FloatingPane *pane : shownIn(*m_layer)) {
        if (pane != this)
            rects.append(QRectF(pane->position(), pane->shownSize()));
    }
    return rects;
}

qreal FloatingPane::reach() const
{
    return m_snapsToEdges ? snapReach * m_unit : -1.0;
}

void FloatingPane::moveTo(const FlyoutPlace &place)
{
    m_arrangement.place = place;
    m_arrangement.isPlaced = true;
    arrange();
}

void FloatingPane::dragTo(const QPointF &position)
{
    if (!m_layer)
        return;
    moveTo(snapped(position, shownSize(), layerSize(), neighbours(), reach()));
}

void FloatingPane::endMove()
{
    remember();
    Q_EMIT movedByUser(position());
}

void FloatingPane::dragTo(const QSizeF &size)
{
    if (!m_layer)
        return;
    if (!m_arrangement.givenSize)
        m_ownSize = {widthValid() ? width() : 0.0, heightValid() ? height() : 0.0};
    m_arrangement.givenSize = snappedSize(position(), size, layerSize(), leastSize * m_unit, neighbours(), reach());
    moveTo(snapped(position(), *m_arrangement.givenSize, layerSize(), {}, std::min(reach(), 0.0)));
}

void FloatingPane::endResize()
{
    remember();
    Q_EMIT resizedByUser(size());
}

void FloatingPane::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    TitledPane::geometryChange(newGeometry, oldGeometry);
    if (m_isArranging)
        return;
    // The page gives it another size or place than the user did.
    if (auto &given = m_arrangement.givenSize) {
        if (newGeometry.width() != oldGeometry.width())
            given->setWidth(newGeometry.width());
        if (newGeometry.height() != oldGeometry.height())
            given->setHeight(newGeometry.height());
    }
    if (newGeometry.topLeft() != oldGeometry.topLeft()) {
        m_pagePlace = newGeometry.topLeft();
        m_arrangement.isPlaced = false;
        m_opener = nullptr;
    }
    arrange();
}

bool FloatingPane::moveByKey(const QKeyEvent &event)
{
    const QPointF direction = directionOf(event.key());
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (!m_isMovable || !m_layer || direction.isNull() || (modifiers & ~Qt::ShiftModifier) != Qt::ControlModifier)
        return false;
    const qreal step = modifiers & Qt::ShiftModifier ? 1.0 : keyStep;
    moveTo(snapped(position() + direction * step * m_unit, shownSize(), layerSize(), {}, std::min(reach(), 0.0)));
    endMove();
    return true;
}

} // namespace tamble::client
