import QtQuick
import TambleClient.Control 1.0

/*! Tall tab with an icon above its text. */
RStyledTab {
    id: root

    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon
    /*! The item that shows the text. */
    property alias textControl: words

    implicitHeight: 64 * RThemeValues.unit

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            x: (parent.width - icon.width) / 2
            y: (words.y - icon.height + 4 * RThemeValues.unit) / 2
            key: root.iconKey
            ssIconForeground: root.ssColor
            opacity: words.opacity
        }
        RTabText {
            id: words
            y: parent.height - height - 8 * RThemeValues.unit
            width: parent.width
            tab: root
        }
    }
}
