import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Switch with a handle: at the left off, at the right on, in the middle while several devices differ. */
RStyledButton {
    id: root

    RStyleSet.typeName: "RButtonSwitch"

    /*! Whether "ON" or "OFF" stands beside the handle, for those who do not see the colours. */
    property bool showHandleText: true
    /*! Whether the bar takes the whole height. */
    property bool freeSpacing: false

    property color ssBorder: root.RStyleSet.props.isSet("border") ? root.RStyleSet.props.border : "transparent"
    property color ssHandlebar: root.RStyleSet.props.handlebar
    property color ssHandle: root.RStyleSet.props.handle
    // The group has no text and no line.
    ssColor: root.ssHandle
    ssLineColor: "transparent"
    ssLineVisible: false

    implicitWidth: 36 * RThemeValues.unit

    contentItem: Item { // qmllint disable deferred-property-id
        // The sheets have no rule for disabled switches.
        opacity: root.RStyleSet.stateHelper.disabled ? 0.5 : 1

        Rectangle {
            id: bar

            readonly property bool handleAtRight: root.selected !== root.mirrored

            y: (parent.height - bar.height) / 2
            width: parent.width
            height: root.freeSpacing ? parent.height : 16 * RThemeValues.unit
            color: root.ssHandlebar
            border.width: RThemeValues.unit
            border.color: root.ssBorder

            RText {
                x: bar.handleAtRight ? 0 : bar.width / 2
                width: bar.width / 2
                height: bar.height
                visible: root.consistent && root.showHandleText
                text: root.selected ? qsTr("ON") : qsTr("OFF")
                color: "#efefef"
                font.pixelSize: RThemeValues.fontSizeXS
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 6
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            Rectangle {
                id: handle
                x: !root.consistent ? (bar.width - handle.width) / 2 : bar.handleAtRight ? bar.width - handle.width - 1 : 1
                y: (bar.height - handle.height) / 2
                width: bar.width / 2 - 2
                height: root.freeSpacing ? bar.height - 2 : 14 * RThemeValues.unit
                color: root.ssHandle
            }
        }
    }
}
