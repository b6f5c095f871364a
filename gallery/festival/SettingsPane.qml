import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0

/*! A group of settings, one below the other. */
RPane {
    id: root

    default property alias settings: column.data

    // As wide as any other tile of the row.
    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    contentPadding: theme.dp(16)

    Column {
        id: column
        width: parent.width
        spacing: theme.dp(16)
    }
}
