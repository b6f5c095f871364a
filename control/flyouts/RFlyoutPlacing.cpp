#include "flyouts/RFlyoutWindowBase.h"

#include <QtCore/QHash>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>

#include <algorithm>

// Where the flyout stands.

namespace tamble::client {

namespace {

constexpr qreal snapReach = 8.0; // these are density-independent units
constexpr qreal keyStep = 8.0;
constexpr QSizeF leastSize(160.0, 80.0);
constexpr QSizeF reachableHeader(64.0, 32.0);

/// The arrangements that are kept by key.
QHash<QString, RFlyoutWindowBase::Arrangement> &memory()
{
    static QHash<QString, RFlyoutWindowBase::Arrangement> kept;
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

} // namespace

/// The first one at which no other flyout stands that was not placed.
int RFlyoutWindowBase::freeStep() const
{
    const QList<RFlyoutWindowBase *> others = shownIn(*m_layer);
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

void RFlyoutWindowBase::recall()
{
    m_opener = nullptr;
    const auto kept = memory().constFind(m_rememberKey);
    if (!m_rememberKey.isEmpty() && kept != memory().constEnd())
        m_arrangement = *kept;
}

void RFlyoutWindowBase::remember() const
{
    if (!m_rememberKey.isEmpty())
        memory().insert(m_rememberKey, m_arrangement);
}

void RFlyoutWindowBase::setArrangement(const Arrangement &arrangement)
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

void RFlyoutWindowBase::arrange()
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
QPointF RFlyoutWindowBase::firstPlace() const
{
    if (m_opener) {
        const QRectF area = m_layer->mapRectFromItem(m_opener, QRectF(QPointF(), m_opener->size()));
        return besideArea(area, m_openerEdge, shownSize(), layerSize());
    }
    const qreal step = m_step * headerHeight();
    return m_pagePlace.value_or(centred(shownSize(), layerSize()) + QPointF(step, step));
}

QSizeF RFlyoutWindowBase::shownSize() const
{
    return {width(), isCollapsed() ? headerHeight() : height()};
}

QList<QRectF> RFlyoutWindowBase::neighbours() const
{
    QList<QRectF> rects;
    for (const RFlyoutWindowBase *flyout : shownIn(*m_layer)) {
        if (flyout != this)
            rects.append(QRectF(flyout->position(), flyout->shownSize()));
    }
    return rects;
}

qreal RFlyoutWindowBase::reach() const
{
    return m_snapsToEdges ? snapReach * m_unit : -1.0;
}

void RFlyoutWindowBase::dragTo(const QPointF &position)
{
    if (!m_layer)
        return;
    m_arrangement.place = snapped(position, shownSize(), layerSize(), neighbours(), reach());
    m_arrangement.isPlaced = true;
    arrange();
}

void RFlyoutWindowBase::endMove()
{
    remember();
    Q_EMIT movedByUser(position());
}

void RFlyoutWindowBase::dragTo(const QSizeF &size)
{
    if (!m_layer)
        return;
    if (!m_arrangement.givenSize)
        m_ownSize = {widthValid() ? width() : 0.0, heightValid() ? height() : 0.0};
    m_arrangement.givenSize = snappedSize(position(), size, layerSize(), leastSize * m_unit, neighbours(), reach());
    m_arrangement.place = snapped(position(), *m_arrangement.givenSize, layerSize(), {}, std::min(reach(), 0.0));
    m_arrangement.isPlaced = true;
    arrange();
}

void RFlyoutWindowBase::endResize()
{
    remember();
    Q_EMIT resizedByUser(size());
}

void RFlyoutWindowBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
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

bool RFlyoutWindowBase::moveByKey(const QKeyEvent &event)
{
    const QPointF direction = directionOf(event.key());
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (!m_isMovable || !m_layer || direction.isNull() || (modifiers & ~Qt::ShiftModifier) != Qt::ControlModifier)
        return false;
    const qreal step = modifiers & Qt::ShiftModifier ? 1.0 : keyStep;
    m_arrangement.place =
        snapped(position() + direction * step * m_unit, shownSize(), layerSize(), {}, std::min(reach(), 0.0));
    m_arrangement.isPlaced = true;
    arrange();
    endMove();
    return true;
}

} // namespace tamble::client
