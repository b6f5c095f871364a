import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Tool window inside a page, such as the equalizer of a channel above the list of channels. open() shows it. */
RFlyoutWindowBase {
    id: root

    RStyleSet.typeName: "RFlyoutWindow"
    RStyleSet.name: root.activeFocus ? "flyoutFocus" : ""

    /*! The items in the flyout, which scroll where it is too small for them. */
    default property alias content: body.contentData

    /*! The size in pixels that shows all of the content: `wantedWidth`, `wantedHeight`. */
    readonly property real wantedWidth: Math.max(160 * RThemeValues.unit, Math.min(320 * RThemeValues.unit, root.headerWidth), body.implicitWidth + root.leftPadding + root.rightPadding + root.barSpace)
    readonly property real wantedHeight: Math.max(80 * RThemeValues.unit, root.headerHeight + body.implicitHeight + 2 * root.padding)

    /*! What the bar of a flyout takes that is higher than its layer, in pixels. */
    readonly property real barSpace: root.layerSize.height > 0 && root.wantedHeight > root.layerSize.height ? 8 * RThemeValues.unit : 0

    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.disabled: !root.enabled

    unit: RThemeValues.unit
    contentParent: body.contentItem
    implicitWidth: root.layerSize.width > 0 ? Math.min(root.wantedWidth, root.layerSize.width) : root.wantedWidth
    implicitHeight: root.collapsed ? root.headerHeight : root.layerSize.height > 0 ? Math.min(root.wantedHeight, root.layerSize.height) : root.wantedHeight
    topPadding: root.headerHeight + root.padding
    // A page may have fixed the height; what is below the layer is out of reach.
    bottomPadding: root.padding + (root.layerSize.height > 0 ? Math.max(0, root.height - root.layerSize.height) : 0)

    // Neither gets through to the page below.
    hoverEnabled: true
    wheelEnabled: true

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground

        RBoxShadow {
            active: root.shown
        }
    }
    contentItem: Flickable { // qmllint disable deferred-property-id
        id: view
        contentWidth: body.width
        contentHeight: body.height
        interactive: view.contentWidth > view.width || view.contentHeight > view.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        RScrollBarTemplate.vertical: RScrollBar {}
        RScrollBarTemplate.horizontal: RScrollBar {}

        RPaneTemplate {
            id: body
            width: Math.max(view.width, body.implicitWidth)
            height: Math.max(view.height, body.implicitHeight)
            implicitWidth: body.contentWidth
            implicitHeight: body.contentHeight
            focus: true
        }
    }

    data: [
        Rectangle {
            width: root.width
            height: root.collapsed ? root.headerHeight : root.height
            z: 2
            color: "transparent"
            border.width: root.borderShown ? RThemeValues.unit : 0
            border.color: root.ssBorderColor
        },
        RFlyoutHandle {
            x: root.width - width
            y: root.height - height
            z: 3
            width: 16 * RThemeValues.unit
            height: 16 * RThemeValues.unit
            visible: root.resizable && !root.collapsed
            flyout: root
            resizes: true

            RIcon {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 3 * RThemeValues.unit
                LayoutMirroring.enabled: false
                key: "corner-flag"
                sizeClass: "XXS"
                rotation: 180
            }
        }
    ]
}
