import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Tall button with a caption above its text, such as a parameter's name above its value. */
RStyledButton {
    id: root

    /*! The lower text, such as a parameter's value. */
    property string textSub: ""

    /*! Another name of `textSub`. */
    property alias labelSub: root.textSub
    /*! The items that show the caption (`txt`) and the lower text (`txtSub`). */
    property alias txt: textItem
    property alias txtSub: subTextItem
    /*! Of the caption: `textColor`, `horizontalAlignment`, `elide` and `fontSize` (pixels). */
    property alias textColor: textItem.color
    property alias horizontalAlignment: textItem.horizontalAlignment
    property alias elide: textItem.elide
    property alias fontSize: textItem.font.pixelSize

    property color ssLabelColor: root.RStyleSet.props.label

    implicitHeight: 64 * RThemeValues.unit

    contentItem: Item { // qmllint disable deferred-property-id
        RText {
            id: textItem
            y: 4 * RThemeValues.unit
            width: parent.width
            leftPadding: 4 * RThemeValues.unit
            rightPadding: 4 * RThemeValues.unit
            text: root.plainText
            color: root.ssLabelColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
        }
        RText {
            id: subTextItem
            y: textItem.y + textItem.height
            width: parent.width
            height: parent.height - subTextItem.y
            leftPadding: 4 * RThemeValues.unit
            rightPadding: 4 * RThemeValues.unit
            text: root.textSub
            color: root.ssColor
            elide: textItem.elide
            horizontalAlignment: textItem.horizontalAlignment
            verticalAlignment: Text.AlignVCenter
        }
    }
}
