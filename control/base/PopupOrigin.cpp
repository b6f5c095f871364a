#include "base/PopupOrigin.h"

#include <QtQuick/QQuickWindow>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include <utility>

namespace tamble::client {

PopupOrigin::PopupOrigin(QQuickPopup &popup)
    : m_popup(popup)
{
    connect(&popup, &QQuickPopup::closed, this, &PopupOrigin::onClosed);
}

void PopupOrigin::rememberFocus(const QQuickItem &place, QQuickItem *focusTaker)
{
    m_formerFocus = place.window() ? place.window()->activeFocusItem() : nullptr;
    m_focusTaker = focusTaker;
}

void PopupOrigin::followOwner(QQuickItem &owner)
{
    if (m_owner)
        m_owner->disconnect(this);
    m_owner = &owner;
    connect(&owner, &QQuickItem::visibleChanged, this, &PopupOrigin::closeWithOwner);
    connect(&owner, &QQuickItem::enabledChanged, this, &PopupOrigin::closeWithOwner);
    connect(&owner, &QObject::destroyed, this, [this] { m_popup.close(); });
}

void PopupOrigin::closeWithOwner()
{
    if (m_owner && !(m_owner->isVisible() && m_owner->isEnabled()))
        m_popup.close();
}

void PopupOrigin::onClosed()
{
    if (m_owner)
        m_owner->disconnect(this);
    m_owner = nullptr;
    const QPointer<QQuickItem> taker = std::exchange(m_focusTaker, nullptr);
    QQuickItem *former = std::exchange(m_formerFocus, nullptr);
    if (!former || !former->window() || !former->isVisible() || !former->isEnabled())
        return;
    QQuickItem *focused = former->window()->activeFocusItem();
    const bool isTaken = taker && (focused == taker || taker->isAncestorOf(focused));
    if (!focused || focused == former->window()->contentItem() || isTaken)
        former->forceActiveFocus(Qt::PopupFocusReason);
}

} // namespace tamble::client
