import QtQuick
import TambleClient.Control 1.0

/*! Small button in the header of a flyout. `text` is its name for assistive tools. */
RButtonBase {
    id: root

    property string iconKey: ""

    implicitWidth: 32 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.TabFocus

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            anchors.centerIn: parent
            key: root.iconKey
            sizeClass: "XS"
            ssIconForeground: root.ssColor
        }
    }
    background: RControlBackground { // qmllint disable deferred-property-id
        color: "transparent"
        focusVisible: root.activeFocus

        Rectangle {
            anchors.fill: parent
            visible: root.hovered || root.down
            color: root.ssColor
            opacity: root.down ? 0.3 : 0.15
        }
    }
}
