import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Tall button with an icon above its text. */
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

    implicitHeight: 64 * RThemeValues.unit
    backgroundRect.lineInset: backgroundRect.border.width
    // A border whose width is read is drawn, in black unless it has a colour.
    backgroundRect.border.color: root.ssBackground

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            x: (parent.width - icon.width) / 2
            y: (textItem.y - icon.height) / 2
            ssIconForeground: root.ssColor
        }
        RText {
            id: textItem
            y: parent.height - textItem.height - 4 * RThemeValues.unit
            width: parent.width
            leftPadding: 4 * RThemeValues.unit
            rightPadding: 4 * RThemeValues.unit
            bottomPadding: 2 * RThemeValues.unit // above the line
            text: root.plainText
            color: root.ssColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
