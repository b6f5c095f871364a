#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickaction_p.h>
#include <QtQuickTemplates2/private/qquickapplicationwindow_p.h>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>
#include <QtQuickTemplates2/private/qquickmenuitem_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickpane_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>
#include <QtQuickTemplates2/private/qquickpopupanchors_p.h>
#include <QtQuickTemplates2/private/qquickscrollbar_p.h>
#include <QtQuickTemplates2/private/qquickscrollview_p.h>
#include <QtQuickTemplates2/private/qquicktabbar_p.h>
#include <QtQuickTemplates2/private/qquicktoolbar_p.h>
#include <QtQuickTemplates2/private/qquicktooltip_p.h>

// Types of QtQuick.Templates under names of this module, for its QML files: an import of Qt's module registers eighty
// types, a fifteenth of what a client's start costs.

namespace tamble::client {

struct AbstractButtonTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickAbstractButton)
    QML_NAMED_ELEMENT(RAbstractButtonTemplate)
};

struct ApplicationWindowTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickApplicationWindow)
    QML_NAMED_ELEMENT(RApplicationWindowTemplate)
};

struct DialogButtonBoxTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickDialogButtonBox)
    QML_NAMED_ELEMENT(RDialogButtonBoxTemplate)
};

struct MenuItemTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickMenuItem)
    QML_NAMED_ELEMENT(RMenuItemTemplate)
};

struct OverlayTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickOverlay)
    QML_ATTACHED(QQuickOverlayAttached)
    QML_UNCREATABLE("")
    QML_NAMED_ELEMENT(ROverlayTemplate)
};

struct PaneTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickPane)
    QML_NAMED_ELEMENT(RPaneTemplate)
};

struct PopupTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickPopup)
    QML_NAMED_ELEMENT(RPopupTemplate)
};

struct ScrollViewTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickScrollView)
    QML_NAMED_ELEMENT(RScrollViewTemplate)
};

struct TabBarTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickTabBar)
    QML_NAMED_ELEMENT(RTabBarTemplate)
};

struct ToolBarTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickToolBar)
    QML_NAMED_ELEMENT(RToolBarTemplate)
};

struct ToolTipTemplate
{
    Q_GADGET
    QML_FOREIGN(QQuickToolTip)
    QML_NAMED_ELEMENT(RToolTipTemplate)
};

/// A class of its own, so that tools know the properties that later versions of Qt brought.
class RScrollBarTemplate : public QQuickScrollBar
{
    Q_OBJECT
    QML_ATTACHED(QQuickScrollBarAttached)
    QML_NAMED_ELEMENT(RScrollBarTemplate)

public:
    using QQuickScrollBar::QQuickScrollBar;
};

} // namespace tamble::client
