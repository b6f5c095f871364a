#include "controls/RBoxShadowBase.h"

#include "controls/BoxShadowNode.h"
#include "scenegraph/SoftwarePicture.h"

#include <QtCore/QScopedValueRollback>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>
#include <QtQuick/private/qquickitem_p.h>

#include <array>
#include <utility>

namespace tamble::client {

namespace {

/// A frame around `box`.
QSGNode *updateEdge(QSGNode *oldNode, QQuickWindow &window, const QRectF &box, qreal width, const QColor &color)
{
    const QRectF outer = box.adjusted(-width, -width, width, width);
    const std::array<QRectF, 4> sides = {
        QRectF(outer.left(), outer.top(), outer.width(), width),
        QRectF(outer.left(), box.bottom(), outer.width(), width),
        QRectF(outer.left(), box.top(), width, box.height()),
        QRectF(box.right(), box.top(), width, box.height()),
    };
    QSGNode *group = oldNode ? oldNode : new QSGNode;
    while (group->childCount() < int(sides.size()))
        group->appendChildNode(window.createRectangleNode());
    for (std::size_t i = 0; i < sides.size(); ++i) {
        auto *side = static_cast<QSGRectangleNode *>(group->childAtIndex(int(i)));
        side->setRect(sides[i]);
        side->setColor(color);
    }
    return group;
}

} // namespace

RBoxShadowBase::RBoxShadowBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    QQuickItemPrivate::get(this)->setTransparentForPositioner(true); // or it would make the row larger that it fills
}

// Its own parent changes when nothing of this is left, and it may be its own target.
RBoxShadowBase::~RBoxShadowBase()
{
    if (m_target)
        disconnect(m_target, nullptr, this, nullptr);
}

void RBoxShadowBase::setTarget(QQuickItem *target)
{
    m_hasOwnTarget = true;
    follow(target);
}

void RBoxShadowBase::follow(QQuickItem *target)
{
    if (m_target == target)
        return;
    if (m_target)
        disconnect(m_target, nullptr, this, nullptr);
    m_target = target;
    if (target) {
        connect(target, &QQuickItem::widthChanged, this, &RBoxShadowBase::place);
        connect(target, &QQuickItem::heightChanged, this, &RBoxShadowBase::place);
    }
    if (target && target != parentItem()) {
        for (auto signal : {&QQuickItem::xChanged, &QQuickItem::yChanged, &QQuickItem::zChanged})
            connect(target, signal, this, &RBoxShadowBase::place);
        connect(target, &QQuickItem::parentChanged, this, &RBoxShadowBase::stack);
    }
    stack();
    place();
    Q_EMIT targetChanged();
}

void RBoxShadowBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change != ItemParentHasChanged)
        return;
    if (!m_hasOwnTarget)
        follow(data.item);
    stack();
    place();
}

void RBoxShadowBase::stack()
{
    if (m_target && parentItem() && m_target->parentItem() == parentItem())
        stackBefore(m_target);
}

// Once at a time: it may be its own target, or that of its target.
void RBoxShadowBase::place()
{
    if (m_isPlacing)
        return;
    const QScopedValueRollback placing(m_isPlacing, true);
    const bool isBesideTarget = m_target && m_target != parentItem();
    setPosition(isBesideTarget ? m_target->position() + m_offset : m_offset);
    setZ(isBesideTarget ? m_target->z() : -1.0);
    setSize(m_target ? m_target->size() : QSizeF(0.0, 0.0));
}

void RBoxShadowBase::setSpread(qreal spread)
{
    if (std::exchange(m_spread, spread) == spread)
        return;
    change();
    Q_EMIT spreadChanged();
}

void RBoxShadowBase::setDarkness(qreal darkness)
{
    if (std::exchange(m_darkness, darkness) == darkness)
        return;
    change();
    Q_EMIT darknessChanged();
}

void RBoxShadowBase::setOffsetX(qreal offset)
{
    if (m_offset.x() == offset)
        return;
    m_offset.setX(offset);
    place();
    Q_EMIT offsetXChanged();
}

void RBoxShadowBase::setOffsetY(qreal offset)
{
    if (m_offset.y() == offset)
        return;
    m_offset.setY(offset);
    place();
    Q_EMIT offsetYChanged();
}

void RBoxShadowBase::setActive(bool active)
{
    if (std::exchange(m_isActive, active) == active)
        return;
    change();
    Q_EMIT activeChanged();
}

void RBoxShadowBase::setEdgeWidth(qreal width)
{
    if (std::exchange(m_edgeWidth, width) == width)
        return;
    change();
    Q_EMIT edgeWidthChanged();
}

void RBoxShadowBase::setSsShadow(const QColor &color)
{
    if (std::exchange(m_ssShadow, color) == color)
        return;
    change();
    Q_EMIT ssShadowChanged();
    if (!m_darkness)
        Q_EMIT darknessChanged();
}

void RBoxShadowBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    change();
}

// Nothing is shown of what is not a number, either.
void RBoxShadowBase::change()
{
    const bool isShown = m_isActive && m_spread > 0.0 && darkness() > 0.0 && width() > 0.0 && height() > 0.0;
    update();
    if (std::exchange(m_isShown, isShown) != isShown)
        Q_EMIT shownChanged();
}

QSGNode *RBoxShadowBase::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (!m_isShown) {
        delete oldNode;
        return nullptr;
    }
    const QRectF box = boundingRect();
    if (isDrawnInSoftware(*this))
        return updateEdge(oldNode, *window(), box.translated(-m_offset), m_edgeWidth, m_ssShadow);
    auto *node = oldNode ? static_cast<BoxShadowNode *>(oldNode) : new BoxShadowNode;
    node->setShadow(box.size(), m_spread, darkness());
    return node;
}

} // namespace tamble::client
