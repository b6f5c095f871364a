import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0

/*! Some of the filters of the channel that is edited, one below the other. */
ColumnLayout {
    id: root

    required property EqualizerStore store
    property int first: 0
    property int count: 1

    width: parent?.width ?? 0
    spacing: theme.dp(4)

    // qmllint disable unqualified
    Repeater {
        model: root.count

        BandRow {
            required property int modelData

            Layout.fillWidth: true
            store: root.store
            index: root.first + modelData
        }
    }
    // qmllint enable unqualified
}
