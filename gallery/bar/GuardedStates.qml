import QtQuick
import TambleClient.Control 1.0

/*! State buttons that are pressed twice, and what they did last. */
Column {
    id: root

    property string said: qsTr("nothing yet")

    spacing: theme.dp(16)

    Row {
        spacing: theme.dp(8)

        RAppBarStateButton {
            RStyleSet.name: "red"
            text: qsTr("POWER OFF")
            iconKey: "power"
            pressTwice: true
            onClicked: root.said = qsTr("power off")
        }
        RAppBarStateButton {
            text: qsTr("RECALL")
            subText: qsTr("Scene 4")
            pressTwice: true
            onClicked: root.said = qsTr("scene 4 recalled")
        }
        RAppBarStateButton {
            text: qsTr("EVACUATION")
            consistent: false
            flashing: true
            pressTwice: true
            selectable: true
            onClicked: root.said = qsTr("evacuation")
        }
    }
    RText {
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
