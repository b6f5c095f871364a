import QtQuick
import QtQuick.Controls.Basic
import BasicClient

/*! A device in the list, to be chosen. */
ItemDelegate {
    id: root

    required property int index
    required property Device device

    width: ListView.view?.width ?? 0
    height: 48
    leftPadding: 16
    rightPadding: 16
    text: qsTr("%1, %2, %3").arg(root.device.name).arg(root.device.location).arg(root.device.condition)
    highlighted: ListView.isCurrentItem
    contentItem: DeviceSummary {
        device: root.device
    }
    onClicked: ListView.view.currentIndex = root.index
}
