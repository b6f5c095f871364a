#include "flyouts/RFlyoutToolbarItemBase.h"

#include "base/Ancestor.h"
#include "flyouts/FlyoutPlace.h"
#include "flyouts/RFlyoutToolbarBase.h"
#include "flyouts/RFlyoutWindowBase.h"
#include "menus/RMenuBase.h"

#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace tamble::client {

RFlyoutToolbarItemBase::RFlyoutToolbarItemBase(QQuickItem *parent)
    : RButtonBase(parent)
{}

void RFlyoutToolbarItemBase::setFlyout(QObject *flyout)
{
    if (m_flyout == flyout)
        return;
    m_flyout = flyout;
    Q_EMIT flyoutChanged();
}

bool RFlyoutToolbarItemBase::isInRow() const
{
    const RFlyoutToolbarBase *bar = nearestAncestor<RFlyoutToolbarBase>(*this);
    return bar && bar->orientation() == Qt::Horizontal;
}

/// Where the window has more room.
Qt::Edge RFlyoutToolbarItemBase::freeEdge() const
{
    const QPointF centre = mapToScene(QPointF(width() / 2.0, height() / 2.0));
    if (isInRow())
        return centre.y() <= window()->height() / 2.0 ? Qt::BottomEdge : Qt::TopEdge;
    return centre.x() <= window()->width() / 2.0 ? Qt::RightEdge : Qt::LeftEdge;
}

void RFlyoutToolbarItemBase::toggleFlyout()
{
    if (!m_flyout || !window())
        return;
    if (auto *flyout = qobject_cast<RFlyoutWindowBase *>(m_flyout)) {
        if (flyout->isShown())
            flyout->close();
        else
            flyout->openAt(this, freeEdge());
    } else if (auto *popup = qobject_cast<QQuickPopup *>(m_flyout)) {
        if (popup->isVisible()) {
            popup->close();
            return;
        }
        popup->setParentItem(this);
        if (auto *menu = qobject_cast<RMenuBase *>(popup))
            menu->makeReady(); // which gives it a size
        const QRectF area = mapRectToScene(QRectF(QPointF(), size()));
        const QSizeF shown(popup->implicitWidth(), popup->implicitHeight());
        popup->setPosition(mapFromScene(besideArea(area, freeEdge(), shown, window()->size())));
        popup->open();
    }
}

void RFlyoutToolbarItemBase::editSelection(bool selected)
{
    RFlyoutToolbarBase *bar = nearestAncestor<RFlyoutToolbarBase>(*this);
    if (!bar || !bar->isExclusive() || !isSelectable()) {
        RButtonBase::editSelection(selected);
    } else if (selected) {
        const QPointer<RFlyoutToolbarItemBase> guard(this);
        bar->deselectOthers(this);
        if (guard)
            RButtonBase::editSelection(true);
    }
}

void RFlyoutToolbarItemBase::deselect()
{
    RButtonBase::editSelection(false);
}

bool RFlyoutToolbarItemBase::leaveBar(bool forwards)
{
    const RFlyoutToolbarBase *bar = nearestAncestor<RFlyoutToolbarBase>(*this);
    QQuickItem *next = nextItemInFocusChain(forwards);
    while (next && next != this && nearestAncestor<RFlyoutToolbarBase>(*next) == bar)
        next = next->nextItemInFocusChain(forwards);
    if (!next || next == this)
        return false;
    next->forceActiveFocus(forwards ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void RFlyoutToolbarItemBase::keyPressEvent(QKeyEvent *event)
{
    if (const RFlyoutToolbarBase *bar = nearestAncestor<RFlyoutToolbarBase>(*this)) {
        const bool isBack = event->key() == Qt::Key_Backtab;
        if (isBack || (event->key() == Qt::Key_Tab && event->modifiers() == Qt::NoModifier)) {
            event->setAccepted(leaveBar(!isBack));
            return;
        }
        const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (RFlyoutToolbarItemBase *next = isPlain ? bar->toolAt(this, event->key()) : nullptr) {
            event->accept();
            next->forceActiveFocus(Qt::OtherFocusReason);
            return;
        }
    }
    RButtonBase::keyPressEvent(event);
}

void RFlyoutToolbarItemBase::hoverEnterEvent(QHoverEvent *event)
{
    RButtonBase::hoverEnterEvent(event);
    if (m_label.isEmpty())
        return;
    if (!m_toolTip)
        m_toolTip = new LateToolTip(*this);
    m_toolTip->show(m_label);
}

void RFlyoutToolbarItemBase::hoverLeaveEvent(QHoverEvent *event)
{
    RButtonBase::hoverLeaveEvent(event);
    if (m_toolTip)
        m_toolTip->hide();
}

void RFlyoutToolbarItemBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    RButtonBase::itemChange(change, data);
    if (change == ItemParentHasChanged)
        Q_EMIT inRowChanged();
}

} // namespace tamble::client
