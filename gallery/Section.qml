import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0

/*! A titled part of a page on a surface of its own. What stands in it inherits no style from that surface. */
Item {
    id: root

    property string title
    /*! What to look at or to try. */
    property string note
    default property alias content: column.data
    readonly property real contentWidth: column.width

    // As wide as any other tile of the row.
    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    implicitHeight: column.height + theme.dp(32)

    Surface {
        anchors.fill: parent
        RStyleSet.typeName: "RPane"
    }
    Column {
        id: column
        x: theme.dp(16)
        y: theme.dp(16)
        width: root.width - theme.dp(32)
        spacing: theme.dp(16)

        Column {
            width: parent.width
            spacing: theme.dp(4)

            RText {
                width: parent.width
                text: root.title
                wrapMode: Text.Wrap
                font.pixelSize: theme.fontSizeXL
                Accessible.role: Accessible.Heading
                Accessible.name: root.title
            }
            RText {
                width: parent.width
                visible: root.note.length > 0
                text: root.note
                wrapMode: Text.Wrap
            }
        }
    }
}
