#include "workspace/WorkspaceItemBase.h"

#include "workspace/ItemContent.h"
#include "workspace/WorkspaceItems.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QScopedValueRollback>
#include <QtQuick/private/qquickitem_p.h>

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// QUuid::createUuid() asks the system each time, which takes as long as all the rest of an item.
QUuid randomId()
{
    QRandomGenerator &random = *QRandomGenerator::global();
    const quint64 high = random.generate64();
    const quint64 low = random.generate64();
    const auto byte = [low](int i) { return uchar(low >> (8 * i)); };
    constexpr ushort randomVersion = 0x4000;
    constexpr uchar variant = 0x80;
    return QUuid(uint(high), ushort(high >> 32), ushort((high >> 48 & 0x0fff) | randomVersion),
                 uchar((byte(0) & 0x3f) | variant), byte(1), byte(2), byte(3), byte(4), byte(5), byte(6), byte(7));
}

bool isFiniteSize(const QSizeF &size)
{
    return std::isfinite(size.width()) && std::isfinite(size.height());
}

} // namespace

WorkspaceItemBase::WorkspaceItemBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    QQuickItemPrivate::get(this)->isTabFence = true; // for its controls; the workspace lets Tab through
    if (parent)
        findWorkspace();
}

WorkspaceItemBase::~WorkspaceItemBase()
{
    blockSignals(true); // those that listen to it hear of its end
    if (m_workspace)
        m_workspace->removeItem(*this);
}

QUuid WorkspaceItemBase::itemId() const
{
    if (m_itemId.isNull()) {
        m_itemId = randomId();
        if (m_workspace)
            m_workspace->m_items->knowId(*const_cast<WorkspaceItemBase *>(this));
    }
    return m_itemId;
}

void WorkspaceItemBase::setItemId(const QUuid &id)
{
    if (m_itemId == id || id.isNull())
        return;
    if (m_workspace && !m_workspace->m_items->changeId(*this, id))
        return;
    m_itemId = id;
    Q_EMIT itemIdChanged();
    // One that had been refused for its id.
    if (!m_workspace)
        findWorkspace();
}

bool WorkspaceItemBase::setState(bool WorkspaceItemBase::*state, bool on, Change changed)
{
    if (std::exchange(this->*state, on) == on)
        return false;
    lookChange();
    Q_EMIT(this->*changed)();
    return true;
}

void WorkspaceItemBase::setLocked(bool locked)
{
    setState(&WorkspaceItemBase::m_locked, locked, &WorkspaceItemBase::lockedChanged);
}

void WorkspaceItemBase::setPlanePosition(const QPointF &position)
{
    if (!std::isfinite(position.x()) || !std::isfinite(position.y()))
        return;
    if (m_moving)
        m_waitingPosition = std::make_unique<QPointF>(position);
    else
        showPosition(position);
}

void WorkspaceItemBase::showPosition(const QPointF &position)
{
    if (m_position.x() == position.x() && m_position.y() == position.y())
        return;
    m_position = position;
    applyPosition();
    // A move tells the view and the selection itself, once for all of its items.
    if (m_workspace && !m_moving)
        m_workspace->placeItem(*this);
    else if (m_workspace && !m_isPlaced)
        m_workspace->m_items->place(*this);
    Q_EMIT positionChanged();
}

void WorkspaceItemBase::endMove()
{
    setState(&WorkspaceItemBase::m_moving, false, &WorkspaceItemBase::movingChanged);
}

void WorkspaceItemBase::applyPosition()
{
    const QScopedValueRollback placing(m_isPlacing, true);
    QQuickItem::setPosition(m_position * m_unit);
}

QSizeF WorkspaceItemBase::planeSize() const
{
    return QQuickItem::size() / m_unit;
}

void WorkspaceItemBase::setPlaneSize(const QSizeF &size)
{
    if (!isFiniteSize(size) || m_size == size)
        return;
    m_size = size;
    applySize();
}

void WorkspaceItemBase::resetPlaneSize()
{
    m_size = QSizeF();
    resetWidth();
    resetHeight();
}

void WorkspaceItemBase::setMinimumSize(const QSizeF &size)
{
    if (!isFiniteSize(size) || m_minimumSize == size)
        return;
    m_minimumSize = size;
    applySize();
    Q_EMIT minimumSizeChanged();
}

void WorkspaceItemBase::applySize()
{
    if (m_size.isValid())
        QQuickItem::setSize(m_size.expandedTo(m_minimumSize) * m_unit);
}

void WorkspaceItemBase::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    applyPosition();
    applySize();
    m_workspace->placeItem(*this);
}

void WorkspaceItemBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_isPlacing)
        return;
    const bool isMovedByPage = newGeometry.x() != oldGeometry.x() || newGeometry.y() != oldGeometry.y();
    const bool isResized = newGeometry.width() != oldGeometry.width() || newGeometry.height() != oldGeometry.height();
    if (isMovedByPage)
        m_position = newGeometry.topLeft() / m_unit;
    if (m_workspace)
        m_workspace->placeItem(*this);
    if (isResized)
        sizeChange();
    if (isMovedByPage) {
        const QPointer<WorkspaceItemBase> self(this);
        Q_EMIT positionChanged();
        if (!self)
            return;
    }
    if (isResized)
        Q_EMIT sizeChanged();
}

void WorkspaceItemBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        findWorkspace();
    else if (change == ItemVisibleHasChanged && m_workspace && parentItem() && parentItem()->isVisible())
        m_workspace->placeItem(*this);
}

bool WorkspaceItemBase::isShownByItself() const
{
    return QQuickItemPrivate::get(this)->explicitVisible;
}

void WorkspaceItemBase::findWorkspace()
{
    WorkspaceBase *found = nullptr;
    for (QQuickItem *ancestor = parentItem(); ancestor && !found; ancestor = ancestor->parentItem())
        found = qobject_cast<WorkspaceBase *>(ancestor);
    if (found && parentItem() == found) {
        setParentItem(found->plane());
        return;
    }
    if (m_workspace == found)
        return;
    if (m_workspace) {
        const QPointer<WorkspaceItemBase> self(this);
        m_workspace->removeItem(*this);
        if (!self)
            return;
        if (!found)
            Q_EMIT workspaceChanged();
    }
    if (found)
        found->addItem(*this);
}

void WorkspaceItemBase::leaveWorkspace()
{
    m_waitingPosition.reset();
    const QPointer<WorkspaceItemBase> self(this);
    endMove();
    if (self)
        setState(&WorkspaceItemBase::m_hovered, false, &WorkspaceItemBase::hoveredChanged);
    if (self)
        setKeyFocus(false);
    if (self)
        setInView(false, true);
    if (self)
        QQuickItemPrivate::get(this)->setCulled(false);
}

void WorkspaceItemBase::setInView(bool inView, bool detailed)
{
    const bool wasDetailed = std::exchange(m_detailed, detailed);
    const bool wasInView = std::exchange(m_inView, inView);
    QQuickItemPrivate::get(this)->setCulled(!inView);
    if (wasInView == inView && wasDetailed == detailed)
        return;
    const QPointer<WorkspaceItemBase> self(this);
    updateContent();
    lookChange();
    if (inView && !wasInView)
        speak();
    if (inView != wasInView)
        Q_EMIT inViewChanged();
    if (self && detailed != wasDetailed)
        Q_EMIT detailedChanged();
}

ItemContent &WorkspaceItemBase::content()
{
    if (!m_content)
        m_content = std::make_unique<ItemContent>();
    return *m_content;
}

QQuickItem *WorkspaceItemBase::contentItem() const
{
    return m_content ? m_content->item() : nullptr;
}

void WorkspaceItemBase::setContentItem(QQuickItem *item)
{
    if (contentItem() == item || item == this)
        return;
    content().setItem(item);
    updateContent();
    Q_EMIT contentItemChanged();
}

QQmlComponent *WorkspaceItemBase::contentComponent() const
{
    return m_content ? m_content->component() : nullptr;
}

void WorkspaceItemBase::setContentComponent(QQmlComponent *component)
{
    if (contentComponent() == component)
        return;
    content().setComponent(component);
    updateContent();
    Q_EMIT contentComponentChanged();
}

void WorkspaceItemBase::updateContent()
{
    if (m_content)
        m_content->show(m_inView && m_detailed, *this);
}

void WorkspaceItemBase::speak()
{
    if (QAccessible::isActive())
        beginToSpeak(*this);
}

QString WorkspaceItemBase::spokenName() const
{
    return tr("Item");
}

QString WorkspaceItemBase::spokenDescription(const QString &given) const
{
    QStringList texts;
    if (!given.isEmpty())
        texts << given;
    texts << QStringLiteral("%1, %2").arg(qRound(m_position.x())).arg(qRound(m_position.y()));
    if (m_selected)
        texts << tr("selected");
    if (m_locked)
        texts << tr("locked");
    return texts.join(QStringLiteral(", "));
}

void WorkspaceItemBase::addSpokenStates(QAccessible::State &state) const
{
    state.selectable = m_selectable;
    state.selected = m_selected;
    state.focusable = true;
    state.focused = m_keyFocus;
}

bool WorkspaceItemBase::pressBySpeech()
{
    if (!m_workspace || !m_selectable)
        return false;
    m_workspace->selection()->select(this, RWorkspaceSelection::Replace);
    return true;
}

} // namespace tamble::client
