import QtQuick
import TambleClient.Control 1.0

/*! Tab with an icon; `label` is its name for assistive tools. */
RStyledTab {
    id: root

    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon

    implicitWidth: 48 * RThemeValues.unit + root.leftPadding + root.rightPadding

    contentItem: Item { // qmllint disable deferred-property-id
        opacity: root.enabled ? 1 : 0.5

        RIcon {
            id: icon
            anchors.centerIn: parent
            key: root.iconKey
            ssIconForeground: root.ssColor
        }
        Rectangle {
            x: root.mirrored ? icon.x - width : icon.x + icon.width
            y: (parent.height - height) / 2
            width: 6 * RThemeValues.unit
            height: width
            radius: width / 2
            visible: root.modified
            color: root.ssColor
        }
    }
}
