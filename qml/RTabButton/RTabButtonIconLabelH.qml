import QtQuick
import TambleClient.Control 1.0

/*! Tab with an icon and its text beside it. Without an icon the text has the whole width. */
RStyledTab {
    id: root

    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon
    /*! The item that shows the text. */
    property alias textControl: words

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon

            readonly property bool shown: String(icon.source).length > 0
            readonly property real space: icon.shown ? icon.width + 4 * RThemeValues.unit : 0

            x: root.mirrored ? parent.width - width : 0
            y: (parent.height - icon.height) / 2
            key: root.iconKey
            ssIconForeground: root.ssColor
            opacity: words.opacity
        }
        RTabText {
            id: words
            x: root.mirrored ? 0 : icon.space
            width: parent.width - icon.space
            height: parent.height
            tab: root
            horizontalAlignment: icon.shown ? Text.AlignLeft : Text.AlignHCenter
        }
    }
}
