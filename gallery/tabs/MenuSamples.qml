import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A drop-down menu, a long one, and a context menu, and what was chosen last. */
Column {
    id: root

    property string said: qsTr("nothing yet")
    property int source: 2

    readonly property var commands: [
        { text: qsTr("Copy"), iconKey: "copy", shortcut: "Ctrl+C" },
        { text: qsTr("Paste"), iconKey: "paste", shortcut: "Ctrl+V", enabled: false },
        { separator: true },
        { text: qsTr("Mute"), iconKey: "mute", checkable: true, checked: true },
        { text: qsTr("Solo"), iconKey: "solo", checkable: true },
        { separator: true },
        { text: qsTr("Colour"), items: [{ text: qsTr("Red") }, { text: qsTr("Green") }, { text: qsTr("More"), items: [{ text: qsTr("Amber") }, { text: qsTr("Blue") }] }] },
        { text: qsTr("Identify"), iconKey: "identify" }
    ]

    width: parent.width
    spacing: theme.dp(16)

    Row {
        spacing: theme.dp(8)

        RButton {
            id: commandsButton
            text: qsTr("Commands")
            onClicked: commandsMenu.visible = !commandsMenu.visible

            RMenu {
                id: commandsMenu
                model: root.commands
                onItemTriggered: (index, item) => root.said = item.text
            }
        }
        RButton {
            text: qsTr("Source")
            onClicked: sourceMenu.visible = !sourceMenu.visible

            RMenu {
                id: sourceMenu
                currentIndexSelected: root.source
                model: Array.from({ length: 200 }, (_, index) => ({ text: qsTr("Input %1").arg(index + 1) }))
                onItemTriggered: (index, item) => {
                    root.source = index
                    root.said = item.text
                }
            }
        }
    }
    Surface {
        id: area
        width: parent.width
        height: theme.dp(96)
        RStyleSet.typeName: "RFlyoutWindow"
        activeFocusOnTab: true
        Keys.onMenuPressed: contextMenu.popupAt(area)

        RText {
            anchors.centerIn: parent
            text: qsTr("Context menu")
        }
        RFocusRectangle {
            visible: area.activeFocus
        }
        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => contextMenu.popupAt(area, eventPoint.position)
        }
        TapHandler {
            acceptedButtons: Qt.LeftButton
            onTapped: area.forceActiveFocus()
            onLongPressed: contextMenu.popupAt(area, point.position)
        }
        RPopupMenu {
            id: contextMenu
            model: root.commands
            onItemTriggered: (index, item) => root.said = item.text
        }
    }
    RText {
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
