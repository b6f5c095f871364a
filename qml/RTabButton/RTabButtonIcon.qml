import QtQuick
import TambleClient.Control 1.0

/*! Tab with an icon; `label` is its name for assistive tools. */
RStyledTab {
    id: root

    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon

    implicitWidth: 40 * RThemeValues.unit + root.leftPadding + root.rightPadding

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            anchors.centerIn: parent
            key: root.iconKey
            ssIconForeground: root.ssColor
            opacity: root.enabled ? 1 : 0.5
        }
    }
}
