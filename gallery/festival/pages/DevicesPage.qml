import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! All devices, and the chosen ones in detail: beside the list, or in its place where there is no room for both. */
FestivalPage {
    id: root

    readonly property bool wide: root.width >= theme.dp(840)

    // Where both have no room, the one with the focus stays.
    onWideChanged: {
        if (!root.wide && (list.activeFocus || details.activeFocus))
            Festival.showsDetails = details.activeFocus
    }

    title: qsTr("Devices")

    DeviceList {
        id: list
        width: root.wide ? theme.dp(448) : parent.width
        height: parent.height
        visible: root.wide || !Festival.showsDetails
        focus: true
        onChosen: devices => Festival.chosenDevices = devices
        onOpened: Festival.showsDetails = true
    }
    DeviceDetails {
        id: details
        x: root.wide ? list.width + theme.dp(16) : 0
        width: parent.width - x
        height: parent.height
        visible: root.wide || Festival.showsDetails
        devices: Festival.chosenDevices
        closable: !root.wide
        onClosed: Festival.showsDetails = false
    }
}
