#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>
#include <QtQuickTemplates2/private/qquickapplicationwindow_p.h>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>
#include <QtQuickTemplates2/private/qquickmenuitem_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>
#include <QtQuickTemplates2/private/qquickpane_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>
#include <QtQuickTemplates2/private/qquickscrollbar_p.h>
#include <QtQuickTemplates2/private/qquickscrollview_p.h>
#include <QtQuickTemplates2/private/qquicktabbar_p.h>
#include <QtQuickTemplates2/private/qquicktoolbar_p.h>
#include <QtQuickTemplates2/private/qquicktooltip_p.h>

// Types of QtQuick.Templates under names of this module, whose QML files do not import Qt's: that registers eighty
// types, which is a fifteenth of what a client's start costs.

namespace tamble::client {

/// Qt's AbstractButton.
class RAbstractButtonTemplate : public QQuickAbstractButton
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAbstractButtonTemplate)

public:
    using QQuickAbstractButton::QQuickAbstractButton;
};

/// Qt's ApplicationWindow.
class RApplicationWindowTemplate : public QQuickApplicationWindow
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RApplicationWindowTemplate)

public:
    using QQuickApplicationWindow::QQuickApplicationWindow;
};

/// Qt's DialogButtonBox.
class RDialogButtonBoxTemplate : public QQuickDialogButtonBox
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDialogButtonBoxTemplate)

public:
    using QQuickDialogButtonBox::QQuickDialogButtonBox;
};

/// Qt's MenuItem.
class RMenuItemTemplate : public QQuickMenuItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMenuItemTemplate)

public:
    using QQuickMenuItem::QQuickMenuItem;
};

/// Qt's Overlay, for its attached object.
class ROverlayTemplate : public QQuickOverlay
{
    Q_OBJECT
    QML_ATTACHED(QQuickOverlayAttached)
    QML_NAMED_ELEMENT(ROverlayTemplate)

public:
    using QQuickOverlay::QQuickOverlay;
};

/// Qt's Pane.
class RPaneTemplate : public QQuickPane
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPaneTemplate)

public:
    using QQuickPane::QQuickPane;
};

/// Qt's Popup.
class RPopupTemplate : public QQuickPopup
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPopupTemplate)

public:
    using QQuickPopup::QQuickPopup;
};

/// Qt's ScrollBar, and its attached object.
class RScrollBarTemplate : public QQuickScrollBar
{
    Q_OBJECT
    QML_ATTACHED(QQuickScrollBarAttached)
    QML_NAMED_ELEMENT(RScrollBarTemplate)

public:
    using QQuickScrollBar::QQuickScrollBar;
};

/// Qt's ScrollView.
class RScrollViewTemplate : public QQuickScrollView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RScrollViewTemplate)

public:
    using QQuickScrollView::QQuickScrollView;
};

/// Qt's TabBar.
class RTabBarTemplate : public QQuickTabBar
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTabBarTemplate)

public:
    using QQuickTabBar::QQuickTabBar;
};

/// Qt's ToolBar.
class RToolBarTemplate : public QQuickToolBar
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RToolBarTemplate)

public:
    using QQuickToolBar::QQuickToolBar;
};

/// Qt's ToolTip.
class RToolTipTemplate : public QQuickToolTip
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RToolTipTemplate)

public:
    using QQuickToolTip::QQuickToolTip;
};

} // namespace tamble::client
