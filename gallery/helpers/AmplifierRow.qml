import QtQuick
import TambleClient.Control 1.0

/*! An amplifier in a list of them. */
Row {
    id: root

    required property string name
    required property string location
    required property string ipAddress
    required property double temperature
    required property bool online

    /*! Widths of the four columns. */
    required property var columns

    height: theme.dp(24)
    opacity: root.online ? 1 : 0.65
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, %3").arg(root.name).arg(root.location).arg(state.text)

    RText {
        width: root.columns[0]
        leftPadding: theme.dp(8)
        text: root.name
        elide: Text.ElideRight
    }
    RText {
        width: root.columns[1]
        leftPadding: theme.dp(8)
        text: root.location
        elide: Text.ElideRight
    }
    RText {
        width: root.columns[2]
        leftPadding: theme.dp(8)
        text: root.ipAddress
    }
    RText {
        id: state
        width: root.columns[3]
        rightPadding: theme.dp(16)
        horizontalAlignment: Text.AlignRight
        text: root.online ? qsTr("%1 °C").arg(root.temperature.toFixed(1)) : qsTr("offline")
    }
}
