import QtQuick
import TambleClient.Control 1.0

/*! The dialog of a message box. */
RDialog {
    id: root

    /*! The message, and what stands below it: `text`, `informativeText`, and `detailedText` on demand. */
    property string text: ""
    property string informativeText: ""
    property string detailedText: ""
    /*! Icon of its kind; empty for none. */
    property string kindIcon: ""
    /*! Text of the check box that keeps the answer; empty for none. */
    property string keepText: ""
    /*! Whether the answer is to be kept. */
    readonly property alias keepsAnswer: keep.selected

    readonly property real gap: 8 * RThemeValues.unit
    readonly property real iconSpace: root.kindIcon === "" ? 0 : 48 * RThemeValues.unit

    Item {
        id: page
        width: page.parent ? page.parent.width : 0
        implicitWidth: Math.min(480 * RThemeValues.unit, Math.max(message.implicitWidth, information.implicitWidth)) + root.iconSpace
        implicitHeight: Math.max(root.iconSpace > 0 ? icon.height : 0, column.implicitHeight)
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.text
        Accessible.description: root.informativeText

        RIcon {
            id: icon
            anchors.left: parent.left
            visible: root.iconSpace > 0
            key: root.kindIcon
            sizeClass: "M"
        }
        Column {
            id: column
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: root.iconSpace
            spacing: root.gap

            RText {
                id: message
                width: column.width
                topPadding: root.iconSpace > 0 ? 4 * RThemeValues.unit : 0
                visible: root.text !== ""
                text: root.text
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
            }
            RText {
                id: information
                width: column.width
                visible: root.informativeText !== ""
                text: root.informativeText
                font.pixelSize: RThemeValues.fontSizeS
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
            }
            RButton {
                id: details
                anchors.left: parent.left
                visible: root.detailedText !== ""
                text: details.selected ? qsTr("Hide details") : qsTr("Show details")
                selectable: true
                enterClicks: true
            }
            Loader {
                width: column.width
                active: details.selected
                visible: active
                // qmllint disable unqualified
                sourceComponent: RTextArea {
                    implicitHeight: 160 * RThemeValues.unit
                    label: qsTr("Details")
                    readOnly: true
                    text: root.detailedText
                }
                // qmllint enable unqualified
            }
            RCheckBox {
                id: keep
                anchors.left: parent.left
                visible: root.keepText !== ""
                text: root.keepText
                selectable: true
            }
        }
    }
}
