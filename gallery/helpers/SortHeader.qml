import QtQuick
import TambleClient.Control 1.0

/*! Head of a column: sorts by it, and in the other direction when it does so already. */
RButton {
    id: root

    required property RSortFilterProxyModel model
    required property string role
    /*! Whether the column is of numbers, which end below each other. */
    property bool numbers: false

    readonly property bool ascending: root.model.sortOrder === Qt.AscendingOrder

    selected: root.model.sortRoleName === root.role
    horizontalAlignment: root.numbers ? Text.AlignRight : Text.AlignLeft
    textControl.leftPadding: theme.dp(8)
    textControl.rightPadding: theme.dp(16)
    Accessible.description: !root.selected ? "" : root.ascending ? qsTr("sorted upwards") : qsTr("sorted downwards")
    onClicked: {
        root.model.sortOrder = root.selected && root.ascending ? Qt.DescendingOrder : Qt.AscendingOrder
        root.model.sortRoleName = root.role
    }

    RIcon {
        x: root.width - theme.dp(12)
        y: (root.height - height) / 2
        visible: root.selected
        key: root.ascending ? "chevron-up" : "chevron-down"
        sizeClass: "XXS"
        ssIconForeground: root.ssColor
    }
}
