#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

class QQuickPopup;

namespace tamble::client {

/// Where a popup was opened: whose it is, without whom it closes, and who gets the keyboard focus back.
class PopupOrigin : public QObject
{
public:
    /// A member of the popup's own class, or a child of the popup.
    explicit PopupOrigin(QQuickPopup &popup);

    /// The popup is about to open in the window of `place`: who has the focus there gets it back when the popup has
    /// closed, unless something but `focusTaker` has it then.
    void rememberFocus(const QQuickItem &place, QQuickItem *focusTaker = nullptr);
    /// From now on until it has closed, the popup closes when `owner` goes, is hidden or disabled.
    void followOwner(QQuickItem &owner);

private:
    void closeWithOwner();
    void onClosed();

    QQuickPopup &m_popup;
    QPointer<QQuickItem> m_owner;
    QPointer<QQuickItem> m_formerFocus;
    QPointer<QQuickItem> m_focusTaker;
};

} // namespace tamble::client
