import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Button that shows either its text or its icon. */
RStyledButton {
    id: root

    /*! Whether the icon is shown in place of the text. */
    property bool showIcon: false

    /*! The icon, `iconItem`, and the name of its picture, `iconKey`. */
    property alias iconItem: icon
    property alias iconKey: icon.key
    /*! Of the text: `textColor`, `horizontalAlignment`, `elide`, `fontSize` (pixels), `fontSizeMode`,
        `minimumPixelSize`, `wrapMode`. */
    property alias textColor: textItem.color
    property alias horizontalAlignment: textItem.horizontalAlignment
    property alias elide: textItem.elide
    property alias fontSize: textItem.font.pixelSize
    property alias fontSizeMode: textItem.fontSizeMode
    property alias minimumPixelSize: textItem.minimumPixelSize
    property alias wrapMode: textItem.wrapMode

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            anchors.centerIn: parent
            visible: root.showIcon
            ssIconForeground: root.ssColor
        }
        RText {
            id: textItem
            anchors.fill: parent
            leftPadding: 4 * RThemeValues.unit
            rightPadding: 4 * RThemeValues.unit
            visible: !root.showIcon
            text: root.plainText
            color: root.ssColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
