import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Push button with a text. `selected` and `consistent` are the page's to set; a click only emits `clicked`. */
RStyledButton {
    id: root

    /*! Sets the state word "active", such as for a signal that is present. */
    property bool active: false

    /*! Turns a device's value into the text of the button. */
    property RValueConverter converter: null
    /*! The device's value as text, which becomes the text of the button. */
    property string value: root.converter ? root.converter.displayText : ""

    /*! The item that shows the text. */
    property alias textControl: textItem
    /*! Of the text: `textColor`, `horizontalAlignment`, `elide` and `fontSize` (pixels). */
    property alias textColor: textItem.color
    property alias horizontalAlignment: textItem.horizontalAlignment
    property alias elide: textItem.elide
    property alias fontSize: textItem.font.pixelSize
    /*! Width in pixels that the text takes when it is not elided. */
    readonly property real implicitTextWidth: textItem.implicitWidth

    RStyleSet.stateHelper.selected: root.consistent && root.selected
    RStyleSet.stateHelper.active: root.active

    enterClicks: false
    onValueChanged: {
        root.literalText = root.converter !== null
        root.text = root.value
    }

    contentItem: RText { // qmllint disable deferred-property-id
        id: textItem
        leftPadding: 4 * RThemeValues.unit
        rightPadding: 4 * RThemeValues.unit
        text: root.plainText
        color: root.ssColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
