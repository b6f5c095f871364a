#include "flyouts/RFlyoutToolbarBase.h"

#include "flyouts/RFlyoutToolbarItemBase.h"

#include <algorithm>

namespace tamble::client {

void RFlyoutToolbarBase::setOrientation(Qt::Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    Q_EMIT orientationChanged();
    tellTools();
}

void RFlyoutToolbarBase::componentComplete()
{
    QQuickToolBar::componentComplete();
    tellTools();
}

void RFlyoutToolbarBase::tellTools()
{
    for (RFlyoutToolbarItemBase *tool : allTools())
        Q_EMIT tool->inRowChanged();
}

void RFlyoutToolbarBase::setExclusive(bool exclusive)
{
    if (m_isExclusive == exclusive)
        return;
    m_isExclusive = exclusive;
    Q_EMIT exclusiveChanged();
}

QList<RFlyoutToolbarItemBase *> RFlyoutToolbarBase::allTools() const
{
    QList<RFlyoutToolbarItemBase *> found;
    if (!m_itemParent)
        return found;
    for (QQuickItem *child : m_itemParent->childItems()) {
        if (auto *tool = qobject_cast<RFlyoutToolbarItemBase *>(child))
            found.append(tool);
    }
    return found;
}

QList<RFlyoutToolbarItemBase *> RFlyoutToolbarBase::tools() const
{
    QList<RFlyoutToolbarItemBase *> found = allTools();
    found.removeIf([](const auto *tool) { return !tool->isVisible() || !tool->isEnabled(); });
    const bool isRow = m_orientation == Qt::Horizontal;
    std::stable_sort(found.begin(), found.end(), [&](const auto *a, const auto *b) {
        return isRow ? (isMirrored() ? a->x() > b->x() : a->x() < b->x()) : a->y() < b->y();
    });
    return found;
}

RFlyoutToolbarItemBase *RFlyoutToolbarBase::toolAt(const RFlyoutToolbarItemBase *here, int key) const
{
    const QList<RFlyoutToolbarItemBase *> all = tools();
    const auto index = std::find(all.begin(), all.end(), here) - all.begin();
    const qsizetype last = all.size() - 1;
    if (index > last)
        return nullptr;
    const bool isRow = m_orientation == Qt::Horizontal;
    const int towardsEnd = !isRow ? Qt::Key_Down : isMirrored() ? Qt::Key_Left : Qt::Key_Right;
    const int towardsStart = !isRow ? Qt::Key_Up : isMirrored() ? Qt::Key_Right : Qt::Key_Left;
    if (key == towardsEnd)
        return all[std::min<qsizetype>(index + 1, last)];
    if (key == towardsStart)
        return all[std::max<qsizetype>(index - 1, 0)];
    return key == Qt::Key_Home ? all.first() : key == Qt::Key_End ? all.last() : nullptr;
}

void RFlyoutToolbarBase::deselectOthers(const RFlyoutToolbarItemBase *selected)
{
    QList<QPointer<RFlyoutToolbarItemBase>> others;
    for (RFlyoutToolbarItemBase *tool : allTools()) {
        if (tool != selected && tool->isSelected())
            others.append(tool);
    }
    // What a page does with one may take the next one away.
    for (const auto &tool : std::as_const(others)) {
        if (tool)
            tool->deselect();
    }
}

} // namespace tamble::client
