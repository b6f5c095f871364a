import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Button with an icon and its text beside it. Without an icon the text has the whole width. */
RStyledButton {
    id: root

    /*! The icon, `iconItem`, the name of its picture, `iconKey`, and the item that shows the text, `txt`. */
    property alias iconItem: icon
    property alias iconKey: icon.key
    property alias txt: textItem
    /*! Of the text: `textColor`, `horizontalAlignment`, `elide` and `fontSize` (pixels). */
    property alias textColor: textItem.color
    property alias horizontalAlignment: textItem.horizontalAlignment
    property alias elide: textItem.elide
    property alias fontSize: textItem.font.pixelSize

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon

            readonly property bool shown: String(icon.source).length > 0
            readonly property real space: icon.shown ? icon.width + 4 * RThemeValues.unit : 0

            x: root.mirrored ? parent.width - icon.space : 4 * RThemeValues.unit
            y: (parent.height - icon.height) / 2
            ssIconForeground: root.ssColor
        }
        RText {
            id: textItem
            x: root.mirrored ? 0 : icon.space
            width: parent.width - icon.space
            height: parent.height
            leftPadding: 4 * RThemeValues.unit
            rightPadding: 4 * RThemeValues.unit
            text: root.plainText
            color: root.ssColor
            elide: Text.ElideRight
            horizontalAlignment: icon.shown ? Text.AlignLeft : Text.AlignHCenter
            LayoutMirroring.enabled: root.mirrored
            verticalAlignment: Text.AlignVCenter
        }
    }
}
