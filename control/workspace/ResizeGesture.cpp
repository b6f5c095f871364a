#include "workspace/ResizeGesture.h"

#include "workspace/MoveTelling.h"
#include "workspace/Snapping.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

ResizeGesture::ResizeGesture(WorkspaceBase &workspace, WorkspaceItemBase &item, const QPointF &pressed)
    : m_workspace(&workspace)
    , m_item(&item)
    , m_from(item.planeRect())
    , m_pressed(pressed)
{}

void ResizeGesture::follow(const PointerAt &pointer)
{
    if (!m_workspace || !m_item || m_isOver)
        return;
    const SnapRules rules = m_workspace->snapRules(pointer.modifiers & Qt::AltModifier);
    const QPointF corner = m_from.bottomRight() + m_workspace->mapToPlane(pointer.pixel) - m_pressed;
    const QSizeF least = m_item->minimumSize();
    const auto length = [&rules](double start, double end, double planeEnd, double leastLength) {
        return std::max(std::min(snappedToGrid(end, rules.grid), planeEnd) - start, leastLength);
    };
    m_item->setPlaneSize(QSizeF(length(m_from.left(), corner.x(), rules.plane.right(), least.width()),
                                length(m_from.top(), corner.y(), rules.plane.bottom(), least.height())));
}

void ResizeGesture::finish()
{
    if (std::exchange(m_isOver, true) || !m_item || m_item->planeRect() == m_from)
        return;
    const QRectF now = m_item->planeRect();
    const QUuid id = m_item->itemId();
    Q_EMIT m_item->resized(m_from, now);
    if (m_workspace)
        tellResized(*m_workspace, {{id, m_from}}, {{id, now}});
}

void ResizeGesture::cancel()
{
    if (!std::exchange(m_isOver, true) && m_item)
        m_item->setPlaneSize(m_from.size());
}

} // namespace tamble::client
