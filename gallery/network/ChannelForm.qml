import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! Gain, delay and muting of one channel of the chosen amplifiers. */
ColumnLayout {
    id: root

    required property DeviceSelection target
    /*! "input1" to "output4". */
    property string channel: "input1"

    spacing: theme.dp(8)

    Flow {
        Layout.fillWidth: true
        spacing: theme.dp(8)

        // qmllint disable unqualified
        Repeater {
            model: ["input", "output"]

            RButtonRow {
                id: row

                required property string modelData

                Repeater {
                    model: 4

                    RButton {
                        required property int index
                        readonly property string channel: row.modelData + (index + 1)

                        width: theme.dp(54)
                        text: row.modelData === "input" ? qsTr("In %1").arg(index + 1) : qsTr("Out %1").arg(index + 1)
                        selected: root.channel === channel
                        onClicked: root.channel = channel
                    }
                }
            }
        }
        // qmllint enable unqualified
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "Name"
        title: qsTr("Na&me")
    }
    SourceLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "Source"
        title: qsTr("So&urce")
    }
    SpinLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "Gain"
        title: qsTr("G&ain")
        suffix: qsTr("dB")
        minimumText: "\u2212\u221e"
        stepSize: 0.5
        pageStepSize: 3
    }
    NumberLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "DelayMs"
        title: qsTr("Dela&y")
        unit: qsTr("ms")
        stepSize: 0.1
    }
    SpinLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "DelaySamples"
        title: qsTr("Sampl&es")
        stepSize: 1
        pageStepSize: 48
    }
    FlagLine {
        Layout.fillWidth: true
        target: root.target
        field: root.channel + "Mute"
        title: qsTr("Mu&te")
    }
}
