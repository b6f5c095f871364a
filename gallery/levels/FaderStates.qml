import QtQuick
import TambleClient.Control 1.0

/*! Faders in their classes and states. */
Flow {
    id: root

    readonly property var looks: [
        { title: qsTr("Plain") },
        { title: qsTr("Red"), styleClass: "red" },
        { title: qsTr("Green"), styleClass: "green" },
        { title: qsTr("Mixed"), mixed: true },
        { title: qsTr("Pending"), pending: true },
        { title: qsTr("Disabled"), disabled: true },
    ]

    spacing: theme.dp(8)

    // qmllint disable unqualified
    Repeater {
        model: root.looks

        Column {
            id: look

            required property int index
            required property var modelData

            RFader {
                RStyleSet.name: look.modelData.styleClass ?? ""
                width: theme.dp(64)
                label: look.modelData.title
                value: -6 - 3 * look.index
                enabled: !look.modelData.disabled
                consistent: !look.modelData.mixed
                confirmed: !look.modelData.pending
                handleText: look.index === 0 ? qsTr("Hall") : ""
                trackIndicatorVisible: Boolean(look.modelData.styleClass)
                trackIndicatorValue: -30
            }
            RText {
                width: parent.width
                text: look.modelData.title
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    // qmllint enable unqualified
}
