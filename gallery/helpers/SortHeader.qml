import QtQuick
import TambleClient.Control 1.0

/*! Head of a column: sorts by it, and in the other direction when it does so already. */
RButtonIconLabelH {
    id: root

    required property RSortFilterProxyModel model
    required property string role

    readonly property bool ascending: root.model.sortOrder === Qt.AscendingOrder

    selected: root.model.sortRoleName === root.role
    iconItem.key: root.selected ? (root.ascending ? "chevron-up" : "chevron-down") : ""
    iconItem.sizeClass: "XXS"
    Accessible.description: !root.selected ? "" : root.ascending ? qsTr("sorted upwards") : qsTr("sorted downwards")
    onClicked: {
        root.model.sortOrder = root.selected && root.ascending ? Qt.DescendingOrder : Qt.AscendingOrder
        root.model.sortRoleName = root.role
    }
}
