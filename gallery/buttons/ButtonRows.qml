import QtQuick
import TambleClient.Control 1.0
import "ButtonLooks.js" as ButtonLooks

/*! A row of buttons in each class: plain, selected, mixed and disabled side by side. */
Column {
    id: root

    spacing: theme.dp(8)

    Repeater {
        model: ButtonLooks.classes

        RButtonRow {
            id: row

            required property string modelData

            RText {
                width: theme.dp(80)
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData || qsTr("no class")
            }
            RButton {
                RStyleSet.name: row.modelData
                width: theme.dp(64)
                text: qsTr("Input")
            }
            RButton {
                RStyleSet.name: row.modelData
                width: theme.dp(64)
                text: qsTr("Matrix")
                selected: true
            }
            RButton {
                RStyleSet.name: row.modelData
                width: theme.dp(64)
                text: qsTr("Output")
                consistent: false
            }
            RButton {
                RStyleSet.name: row.modelData
                width: theme.dp(64)
                text: qsTr("Record")
                enabled: false
            }
        }
    }
}
