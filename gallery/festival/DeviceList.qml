import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The devices of the installation, found by any of their texts. Several can be chosen, to be set up together. */
FocusScope {
    id: root

    /*! Other devices were chosen: their numbers. */
    signal chosen(var devices)
    /*! What is chosen is to be shown in detail. */
    signal opened()

    /*! Selects what the page shows in detail. */
    function showChosen() {
        const found = Festival.chosenDevices.map(device => rows.indexOf("device", device))
        const chosen = found.filter(row => row >= 0).sort((a, b) => a - b)
        devices.selectedIndexes = chosen
        if (chosen.length > 0)
            devices.currentIndex = chosen[0]
    }

    /*! Shows a device with an alarm in detail, unless one is shown already. */
    function showAlarm() {
        const isShown = Festival.chosenDevices.some(device => rows.indexOf("device", device) >= 0)
        if (!isShown && rows.count > 0)
            root.chosen([rows.get(0).device])
        root.showChosen()
    }

    Connections {
        target: Festival

        function onDevicesAsked() {
            search.clear()
            root.showChosen()
        }
        function onAlarmsAsked() {
            search.clear()
            root.showAlarm()
        }
    }
    RSortFilterProxyModel {
        id: wanted
        sourceModel: GalleryInstallation.allDevices
        filterRoleNames: ["alarm"]
        filterSyntax: RSortFilterProxyModel.RegularExpression
        filterPattern: Festival.alarmsOnly ? "." : ""
        sortEnabled: false
    }
    RSortFilterProxyModel {
        id: rows
        sourceModel: wanted
        filterRoleNames: ["name", "location", "ipAddress", "kind", "alarm"]
        filterPattern: search.text
        sortEnabled: false
    }
    Row {
        id: tools
        width: root.width
        spacing: theme.dp(8)

        RTextField {
            id: search
            width: parent.width - count.width - alarms.width - 2 * parent.spacing
            label: qsTr("Search")
            placeholderText: qsTr("Name, place, address …")
        }
        RButton {
            id: alarms
            RStyleSet.name: Festival.alarmsOnly ? "red" : ""
            width: theme.dp(80)
            text: qsTr("Alarms")
            selected: Festival.alarmsOnly
            onClicked: Festival.alarmsOnly = !Festival.alarmsOnly
        }
        RText {
            id: count
            height: search.height
            verticalAlignment: Text.AlignVCenter
            text: qsTr("%1 of %2").arg(rows.count).arg(GalleryInstallation.allDevices.rowCount())
        }
    }
    RListView {
        id: devices
        y: tools.height + theme.dp(8)
        width: root.width
        height: root.height - y
        focus: true
        model: rows
        textRole: "name"
        label: qsTr("Devices")
        selectionMode: RListView.Multiple
        placeholderText: qsTr("No device is like this")
        Component.onCompleted: root.showChosen()
        onSelectionEdited: indexes => root.chosen(indexes.map(index => rows.get(index).device))
        onActivated: root.opened()

        delegate: DeviceEntry {}
    }
}
