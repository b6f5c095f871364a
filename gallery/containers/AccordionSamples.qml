import QtQuick
import TambleClient.Control 1.0

/*! Channels to open and to put into another order, and sections that do not go anywhere. */
Column {
    id: root

    property string said: qsTr("Nothing moved yet.")

    spacing: theme.dp(16)

    ListModel {
        id: channels
        ListElement { name: "Vocals"; source: "Stage box A 1"; icon: "microphone" }
        ListElement { name: "Guitar"; source: "Stage box A 2"; icon: "microphone" }
        ListElement { name: "Bass"; source: "Stage box A 3"; icon: "line-input" }
        ListElement { name: "Keys"; source: "Stage box B 1"; icon: "line-input" }
        ListElement { name: "Ambience"; source: "Stage box B 2"; icon: "microphone" }
    }

    Flow {
        width: parent.width
        spacing: theme.dp(8)

        RCheckBox {
            id: exclusive
            text: qsTr("One at a time")
        }
        RButton {
            width: theme.dp(112)
            text: qsTr("Open all")
            enabled: !exclusive.selected
            onClicked: sections.expandAll()
        }
        RButton {
            width: theme.dp(112)
            text: qsTr("Close all")
            onClicked: sections.collapseAll()
        }
    }
    RAccordion {
        id: sections
        width: parent.width
        height: theme.dp(400)
        exclusive: exclusive.selected
        reorderable: true
        onItemMoved: (from, to) => {
            root.said = qsTr("%1 moved from %2 to %3.").arg(channels.get(from).name).arg(from + 1).arg(to + 1)
            channels.move(from, to, 1)
        }

        RAccordionSectionHeader {
            title: qsTr("Inputs")
            collapsible: true
        }
        // qmllint disable unqualified
        Repeater {
            model: channels

            RAccordionItem {
                id: channel

                required property string name
                required property string source
                required property string icon

                title: name
                subtitle: source
                iconKey: icon
                expanded: name === "Guitar"
                headerContent: RButtonIcon {
                    width: theme.dp(32)
                    label: qsTr("Mute %1").arg(channel.name)
                    iconItem.key: "mute"
                    iconItem.sizeClass: "XS"
                    selectable: true
                    RStyleSet.name: "red"
                }
                lazyContent: ChannelSection {}
            }
        }
        // qmllint enable unqualified
    }
    RText {
        text: root.said
    }
}
