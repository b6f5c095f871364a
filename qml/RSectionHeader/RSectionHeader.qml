import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Title of a group on a page, with a line beside or below it, and room for items at its end. */
Item {
    id: root

    RStyleSet.typeName: "RSectionHeader"

    /*! What the group is called. */
    property string text: ""
    /*! What stands at the end, such as a button that adds to the group. */
    default property alias content: items.data
    /*! Whether the line runs below the text, all along, and not beside it. */
    property bool lineBelow: false

    /*! Whether there are rules for titles: the line's key tells, as the text's may come from around. */
    readonly property bool ruled: root.RStyleSet.props.isSet("line")
    property color ssColor: root.ruled ? root.RStyleSet.props.foreground : caption.RStyleSet.props.foreground
    property color ssLineColor: root.ruled ? root.RStyleSet.props.line : caption.RStyleSet.props.foreground

    /*! Pixels: between the parts (`gap`), and for what stands at the end (`contentSpace`). */
    readonly property real gap: 8 * RThemeValues.unit
    readonly property real contentSpace: items.width > 0 ? items.width + root.gap : 0

    implicitWidth: words.implicitWidth + root.contentSpace + 4 * root.gap
    implicitHeight: 32 * RThemeValues.unit
    Accessible.role: Accessible.Heading
    Accessible.name: root.text

    RStyleProbe {
        id: caption
        type: "RLabel"
    }
    Item {
        anchors.fill: parent
        LayoutMirroring.enabled: root.LayoutMirroring.enabled
        LayoutMirroring.childrenInherit: true

        RText {
            id: words
            anchors.left: parent.left
            width: Math.min(words.implicitWidth, root.width - root.contentSpace)
            height: parent.height
            text: root.text
            color: root.ssColor
            font.pixelSize: RThemeValues.fontSizeL
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
        Rectangle {
            anchors.left: root.lineBelow ? parent.left : words.right
            anchors.leftMargin: root.lineBelow ? 0 : root.gap
            anchors.right: root.lineBelow ? parent.right : items.left
            anchors.rightMargin: root.lineBelow || root.contentSpace === 0 ? 0 : root.gap
            y: root.lineBelow ? parent.height - height : Math.round((parent.height - height) / 2)
            height: RThemeValues.unit
            color: root.ssLineColor
        }
        Row {
            id: items
            anchors.right: parent.right
            height: parent.height
            spacing: RThemeValues.gap
        }
    }
}
