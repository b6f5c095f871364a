import QtQuick
import TambleClient.Control 1.0

/*! What a channel's section opens: made when it is first seen. */
Column {
    id: root

    spacing: theme.dp(8)

    Row {
        spacing: theme.dp(8)

        RLabel {
            width: theme.dp(72)
            height: theme.dp(32)
            text: qsTr("Gain")
            buddy: gain
            verticalAlignment: Text.AlignVCenter
        }
        RSpinBox {
            id: gain
            from: -80
            to: 10
            value: -6
            suffix: qsTr("dB")
        }
    }
    RCheckBox {
        text: qsTr("Phantom power")
    }
    RCheckBox {
        text: qsTr("Low cut")
        selected: true
    }
}
