import QtQuick
import TambleClient.Control 1.0

/*! Rows of tabs to try, one of which can be closed and opened again. */
Column {
    id: root

    property int current: 0
    property int view: 0
    property int lastNumber: 3
    /*! Tabs become narrower, so that all of them and the button behind them are seen. */
    readonly property real tabWidth: Math.min(theme.dp(128), (root.width - theme.dp(32)) / Math.max(1, scenes.count) - theme.dp(1))

    /*! A function of the column: the tab and what it knows go with its row. */
    function close(index: int) {
        scenes.remove(index)
        root.current = Math.max(0, Math.min(root.current, scenes.count - 1))
    }

    width: parent.width
    spacing: theme.dp(16)

    ListModel {
        id: scenes
        ListElement { name: "Scene 1"; changed: false; faults: "" }
        ListElement { name: "Scene 2"; changed: true; faults: "" }
        ListElement { name: "Scene 3"; changed: false; faults: "2" }
    }

    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: scenes

            RTabButton {
                required property int index
                required property string name
                required property bool changed
                required property string faults

                width: root.tabWidth
                text: name
                modified: changed
                badge: faults
                closable: true
                selected: root.current === index
                onClicked: root.current = index
                onCloseRequested: root.close(index)
            }
        }
        // qmllint enable unqualified
        RButtonIcon {
            width: theme.dp(32)
            label: qsTr("New scene")
            iconItem.key: "plus"
            iconItem.sizeClass: "XS"
            enabled: scenes.count < 5
            onClicked: {
                root.lastNumber += 1
                scenes.append({ name: qsTr("Scene %1").arg(root.lastNumber), changed: false, faults: "" })
            }
        }
    }
    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: [["mixer", qsTr("Mixer")], ["eq", qsTr("Equalizer")], ["matrix", qsTr("Matrix")]]

            RTabButtonIconLabelV {
                required property int index
                required property var modelData

                width: theme.dp(96)
                iconKey: modelData[0]
                text: modelData[1]
                selected: root.view === index
                onClicked: root.view = index
            }
        }
        // qmllint enable unqualified
    }
    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: [["mixer", qsTr("Mixer")], ["eq", qsTr("Equalizer")], ["matrix", qsTr("Matrix")]]

            RTabButtonIcon {
                required property int index
                required property var modelData

                RStyleSet.name: "filled"
                iconKey: modelData[0]
                label: modelData[1]
                selected: root.view === index
                onClicked: root.view = index
            }
        }
        // qmllint enable unqualified
    }
}
