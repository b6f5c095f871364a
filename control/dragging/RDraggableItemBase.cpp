#include "dragging/RDraggableItemBase.h"

#include "dragging/DragGhost.h"

#include <QtQml/qqml.h>

#include <utility>

namespace tamble::client {

RDraggableItemBase::RDraggableItemBase(QQuickItem *parent)
    : DragSource(parent)
{
    // Buttons in the content keep their clicks.
    setFiltersChildMouseEvents(true);
}

RDraggableItemBase::~RDraggableItemBase()
{
    // Nobody is told any more, but the area below the picture.
    if (m_drag)
        m_drag->cancel();
}

void RDraggableItemBase::setDragEnabled(bool enabled)
{
    if (std::exchange(m_dragEnabled, enabled) != enabled)
        Q_EMIT dragEnabledChanged();
}

void RDraggableItemBase::setHandle(QQuickItem *handle)
{
    if (m_handle == handle)
        return;
    m_handle = handle;
    Q_EMIT handleChanged();
}

bool RDraggableItemBase::beginsAt(const QPointF &point) const
{
    return m_dragEnabled && (!m_handle || m_handle->contains(mapToItem(m_handle, point)));
}

void RDraggableItemBase::dragBegins()
{
    m_drag = qobject_cast<QQuickDragAttached *>(qmlAttachedPropertiesObject<QQuickDrag>(ghost(), true));
    m_drag->setSource(this);
    m_drag->setKeys(m_dragKeys);
    m_drag->setSupportedActions(m_supportedActions);
    m_drag->setHotSpot(ghost()->mapFromScene(pressedAt()));
    m_drag->setActive(true);
    Q_EMIT dragStarted();
}

QPointF RDraggableItemBase::dragMoves(const QPointF &way)
{
    return {m_axis & QQuickDrag::XAxis ? way.x() : 0.0, m_axis & QQuickDrag::YAxis ? way.y() : 0.0};
}

bool RDraggableItemBase::dragEnds()
{
    if (!m_drag)
        return false;
    const QPointer<RDraggableItemBase> guard(this);
    const int action = m_drag->drop();
    if (!guard)
        return action != Qt::IgnoreAction;
    QObject *target = m_drag ? m_drag->target() : nullptr;
    m_drag = nullptr;
    if (action == Qt::IgnoreAction)
        Q_EMIT canceled();
    else
        Q_EMIT dropped(qobject_cast<QQuickItem *>(target), action);
    return action != Qt::IgnoreAction;
}

void RDraggableItemBase::dragIsCanceled()
{
    if (m_drag)
        m_drag->cancel();
    m_drag = nullptr;
    Q_EMIT canceled();
}

} // namespace tamble::client
