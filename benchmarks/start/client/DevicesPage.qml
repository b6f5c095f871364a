import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import BasicClient

/*! All devices, found by any of their texts, and the chosen one in detail: beside the list, or in its place where there
    is no room for both. */
FocusScope {
    id: root

    required property Installation installation
    property alias alarmsOnly: rows.alarmsOnly
    property Device chosen: root.installation.devices.deviceAt(0)
    property bool showsDetails: false
    readonly property bool wide: root.width >= 808

    DeviceFilter {
        id: rows
        sourceModel: root.installation.devices
        text: search.text
    }
    ColumnLayout {
        width: root.wide ? 448 : root.width
        height: root.height
        visible: root.wide || !root.showsDetails

        RowLayout {
            spacing: 8

            TextField {
                id: search
                Layout.fillWidth: true
                placeholderText: qsTr("Name, place, address …")
                Accessible.name: qsTr("Search")
            }
            Button {
                Layout.preferredWidth: 80
                text: qsTr("Alarms")
                checked: rows.alarmsOnly
                onClicked: rows.alarmsOnly = !rows.alarmsOnly
            }
            Label {
                text: qsTr("%1 of %2").arg(list.count).arg(root.installation.devices.count)
            }
        }
        ListView {
            id: list
            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
            clip: true
            model: rows
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Devices")
            ScrollBar.vertical: ScrollBar {
                policy: ScrollBar.AlwaysOn
            }
            onCurrentItemChanged: {
                const row = list.currentItem as DeviceRow
                if (row)
                    root.chosen = row.device
            }
            Keys.onReturnPressed: root.showsDetails = true

            delegate: DeviceRow {
                onDoubleClicked: root.showsDetails = true // qmllint disable unqualified
            }

            Label {
                parent: list
                anchors.centerIn: parent
                visible: list.count === 0
                text: qsTr("No device is like this")
            }
        }
    }
    DeviceDetails {
        x: root.wide ? 464 : 0
        width: root.width - x
        height: root.height
        visible: root.wide || root.showsDetails
        installation: root.installation
        device: root.chosen
        closable: !root.wide
        onClosed: root.showsDetails = false
    }
}
