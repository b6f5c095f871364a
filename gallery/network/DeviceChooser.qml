import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Which amplifiers are edited: one after a click, several with the switch on. */
Flow {
    id: root

    /*! Numbers of the chosen devices, from 0. */
    property var chosen: [0]

    function isChosen(device: int): bool {
        return root.chosen.includes(device)
    }

    function toggle(device: int) {
        const others = root.chosen.filter(other => several.selected && other !== device)
        root.chosen = root.isChosen(device) && several.selected ? others : others.concat([device]).sort((a, b) => a - b)
    }

    spacing: theme.dp(4)
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Amplifiers")

    // qmllint disable unqualified
    Repeater {
        id: buttons
        model: GalleryInstallation.amplifiers

        RButton {
            required property int device
            required property string name
            required property bool online

            RStyleSet.name: online ? "" : "red"
            width: theme.dp(44)
            text: online ? String(device + 1) : qsTr("%1 off").arg(device + 1)
            selected: root.isChosen(device)
            Accessible.name: name
            Accessible.description: online ? "" : qsTr("offline")
            onClicked: root.toggle(device)
        }
    }
    // qmllint enable unqualified
    RButton {
        id: several
        width: theme.dp(80)
        text: qsTr("Se&veral")
        selectable: true
    }
    RButton {
        width: theme.dp(80)
        text: qsTr("&All")
        onClicked: {
            several.selected = true
            root.chosen = Array.from({
                length: buttons.count
            }, (_, device) => device)
        }
    }
}
