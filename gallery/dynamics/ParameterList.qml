import QtQuick
import TambleClient.Control 1.0

/*! Names of parameters with their values, two pairs a line where there is room. */
Grid {
    id: root

    /*! Pairs of a name and a text. */
    required property var parameters

    columns: root.width < theme.dp(240) ? 1 : 2
    columnSpacing: theme.dp(16)
    rowSpacing: theme.dp(4)

    // qmllint disable unqualified
    Repeater {
        model: root.parameters

        RText {
            required property var modelData

            width: (root.width - (root.columns - 1) * root.columnSpacing) / root.columns
            text: qsTr("%1 %2").arg(modelData[0]).arg(modelData[1])
            wrapMode: Text.Wrap
        }
    }
    // qmllint enable unqualified
}
