import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0

/*! Items of one width side by side, as many as fit; those of a row have one height. */
GridLayout {
    id: root

    property real minimumTileWidth: theme.dp(480)

    Layout.fillWidth: true
    columns: Math.max(1, Math.floor((root.width + root.columnSpacing) / (root.minimumTileWidth + root.columnSpacing)))
    columnSpacing: theme.dp(16)
    rowSpacing: theme.dp(16)
}
