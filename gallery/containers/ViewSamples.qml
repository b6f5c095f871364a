import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Views that are loaded when they are first shown. */
Column {
    id: root

    property string said: qsTr("nothing yet")

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    Flow {
        width: parent.width
        spacing: theme.dp(8)

        // qmllint disable unqualified
        Repeater {
            model: container.views

            RButton {
                required property var modelData

                width: theme.dp(112)
                text: modelData.title
                selected: container.currentKey === modelData.key
                onClicked: container.show(modelData.key)
            }
        }
        // qmllint enable unqualified
        RButtonIcon {
            width: theme.dp(32)
            label: qsTr("Back")
            iconItem.key: "chevron-left"
            enabled: container.history.length > 0
            onClicked: container.back()
        }
        RCheckBox {
            id: unsaved
            height: theme.dp(32)
            text: qsTr("Edits are not saved")
        }
    }
    Surface {
        width: parent.width
        height: theme.dp(208)
        RStyleSet.typeName: "RFlyoutWindow"

        RViewContainer {
            id: container
            anchors.fill: parent
            clip: true
            blurWhenBusy: true
            guard: key => {
                if (unsaved.selected)
                    root.said = qsTr("the edits on this page are to be saved first")
                return !unsaved.selected
            }
            views: [
                { key: "name", title: qsTr("Name"), component: nameView, keepAlive: true },
                { key: "levels", title: qsTr("Levels"), component: levelsView },
                { key: "large", title: qsTr("Large page"), component: largeView },
                { key: "missing", title: qsTr("No such file"), source: "NoSuchFile.qml" }
            ]
            onViewShown: key => root.said = qsTr("%1 is shown").arg(currentTitle)
            onViewFailed: (key, error) => root.said = error
        }
    }
    RText {
        width: parent.width
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    // qmllint disable unqualified
    Component {
        id: nameView
        Item {
            RTextField {
                x: theme.dp(16)
                y: theme.dp(16)
                width: theme.dp(208)
                label: qsTr("Name of the device")
                placeholderText: label
            }
        }
    }
    Component {
        id: levelsView
        Item {
            Row {
                anchors.centerIn: parent
                spacing: theme.dp(16)

                Repeater {
                    model: 8

                    RFader {
                        required property int index

                        height: theme.dp(176)
                        label: qsTr("Channel %1").arg(index + 1)
                        from: -80
                        to: 10
                        value: -3 * index
                    }
                }
            }
        }
    }
    Component {
        id: largeView
        Item {
            Grid {
                columns: 24

                Repeater {
                    model: 24 * 12

                    RButton {
                        required property int index

                        width: theme.dp(40)
                        height: theme.dp(16)
                        text: index
                    }
                }
            }
        }
    }
    // qmllint enable unqualified
}
