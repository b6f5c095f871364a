#include "controls/RUnderlay.h"

namespace tamble::client {

RUnderlay::RUnderlay(QQuickItem *parent)
    : QQuickItem(parent)
{}

// Its own parent changes when nothing of this is left, and it may be its own target.
RUnderlay::~RUnderlay()
{
    if (m_target)
        disconnect(m_target, nullptr, this, nullptr);
}

void RUnderlay::setTarget(QQuickItem *target)
{
    if (m_target == target)
        return;
    if (m_target)
        disconnect(m_target, nullptr, this, nullptr);
    m_target = target;
    if (target)
        connect(target, &QQuickItem::parentChanged, this, &RUnderlay::stack);
    stack();
    Q_EMIT targetChanged();
}

void RUnderlay::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        stack();
}

void RUnderlay::stack()
{
    if (m_target && parentItem() && m_target->parentItem() == parentItem())
        stackBefore(m_target);
}

} // namespace tamble::client
