import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A whole bar in a frame whose width is dragged, with the pages of a venue. */
Column {
    id: root

    property int page: 1
    property int subPage: 0
    property bool online: true
    property int messages: 7
    property real share: 1

    readonly property var pages: [
        { text: qsTr("Overview"), icon: "home", subPages: [] },
        { text: qsTr("Mixer"), icon: "mixer", subPages: [qsTr("Inputs"), qsTr("Groups"), qsTr("Outputs")] },
        { text: qsTr("Equalizer"), icon: "eq", subPages: [qsTr("Parametric"), qsTr("Graphic")] },
        { text: qsTr("Matrix"), icon: "matrix", subPages: [] },
        { text: qsTr("Presets"), icon: "preset", subPages: [qsTr("Scenes"), qsTr("Snapshots"), qsTr("Schedule")] }
    ]

    spacing: theme.dp(16)

    Item {
        width: root.width
        height: theme.dp(80)

        RAppBar {
            id: bar
            width: Math.max(theme.dp(120), root.width * root.share)
            title: qsTr("Harbour Arena")

            leading: RAppBarButton {
                label: qsTr("Menu")
                iconKey: "menu"
                badge: root.messages > 0 ? root.messages : ""
                onClicked: root.messages = 0
            }
            trailing: [
                RAppBarStateButton {
                    RStyleSet.name: root.online ? "green" : "red"
                    text: root.online ? qsTr("ONLINE") : qsTr("OFFLINE")
                    subText: root.online ? qsTr("12 of 12") : qsTr("searching")
                    flashing: !root.online
                    onClicked: root.online = !root.online
                },
                RAppBarStateButton {
                    RStyleSet.name: "red"
                    text: qsTr("MUTE ALL")
                    selectable: true
                    pressTwice: true
                }
            ]

            // qmllint disable unqualified
            Repeater {
                model: root.pages

                RAppBarNavButton {
                    required property int index
                    required property var modelData

                    text: modelData.text
                    iconKey: modelData.icon
                    selected: root.page === index
                    onClicked: {
                        root.page = index
                        root.subPage = 0
                    }
                }
            }

            subNavigation: Repeater {
                model: root.pages[root.page].subPages

                RAppBarSubNavButton {
                    required property int index
                    required property string modelData

                    text: modelData
                    selected: root.subPage === index
                    onClicked: root.subPage = index
                }
            }
            // qmllint enable unqualified
        }
        Rectangle {
            id: grip
            x: bar.width - width
            width: theme.dp(4)
            height: theme.dp(80)
            color: label.color
            opacity: 0.4

            MouseArea {
                anchors.fill: parent
                anchors.margins: -theme.dp(6)
                cursorShape: Qt.SizeHorCursor
                onPositionChanged: mouse => root.share = Math.max(0.1, Math.min(1, (mapToItem(root, mouse.x, 0).x) / root.width))
            }
        }
    }
    RText {
        id: label
        text: bar.compact ? qsTr("compact") : qsTr("with texts")
    }
}
