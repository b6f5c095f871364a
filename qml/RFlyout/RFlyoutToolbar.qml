import QtQuick
import TambleClient.Control 1.0

/*! Floating row or column of tools. */
RFlyoutToolbarBase {
    id: root

    RStyleSet.typeName: "RFlyoutToolbar"

    /*! The tools. */
    default property alias items: grid.data
    /*! Whether the user can move the bar within its parent, by a grip at its start. */
    property bool movable: false

    property color ssBackground: root.RStyleSet.props.background
    property color ssBorderColor: root.RStyleSet.props.border
    property color ssShadow: root.RStyleSet.props.shadow

    /*! Whether the tools stand side by side. */
    readonly property bool row: root.orientation === Qt.Horizontal
    /*! What the grip takes of the bar's length, in pixels. */
    readonly property real gripSize: root.movable ? 16 * RThemeValues.unit : 0

    RStyleSet.stateHelper.disabled: !root.enabled

    itemParent: grid
    implicitWidth: grid.implicitWidth + root.leftPadding + root.rightPadding + (root.row ? root.gripSize : 0)
    implicitHeight: grid.implicitHeight + root.topPadding + root.bottomPadding + (root.row ? 0 : root.gripSize)
    padding: 4 * RThemeValues.unit
    hoverEnabled: true
    wheelEnabled: true
    Accessible.name: qsTr("tools")

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground
        border.width: RThemeValues.unit
        border.color: root.ssBorderColor

        RBoxShadow {
            ssShadow: root.ssShadow
        }
    }
    contentItem: Item { // qmllint disable deferred-property-id
        Grid {
            id: grid
            x: root.row && !root.mirrored ? root.gripSize : 0
            y: root.row ? 0 : root.gripSize
            columns: root.row ? Math.max(1, grid.children.length) : 1
            spacing: RThemeValues.gap
        }
    }

    data: Item {
        x: root.row && root.mirrored ? root.width - width : 0
        width: root.row ? root.gripSize + root.leftPadding : root.width
        height: root.row ? root.height : root.gripSize + root.topPadding
        visible: root.movable

        RIcon {
            anchors.centerIn: parent
            key: "drag-handle"
            sizeClass: "XS"
            rotation: root.row ? 0 : 90
        }
        HoverHandler {
            cursorShape: Qt.OpenHandCursor
        }
        DragHandler {
            target: root
            xAxis.minimum: 0
            xAxis.maximum: root.parent ? Math.max(0, root.parent.width - root.width) : 0
            yAxis.minimum: 0
            yAxis.maximum: root.parent ? Math.max(0, root.parent.height - root.height) : 0
        }
    }
}
