import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Button with an icon; `label` is its name for assistive tools. */
RStyledButton {
    id: root

    /*! The icon, `iconItem`, and the name of its picture, `iconKey`. */
    property alias iconItem: icon
    property alias iconKey: icon.key

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            anchors.centerIn: parent
            ssIconForeground: root.ssColor
        }
    }
}
