import QtQuick
import QtQuick.Controls.Basic
import BasicClient

/*! A device in a line: its kind, its name and place, and how it is. */
Item {
    id: root

    required property Device device

    Image {
        anchors.verticalCenter: parent.verticalCenter
        source: "qrc:/icons/%1_24x24.png".arg(root.device.kind)
        opacity: root.device.online ? 1 : 0.5
    }
    Column {
        anchors.left: parent.left
        anchors.leftMargin: 40
        anchors.right: state.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            text: root.device.name
            elide: Text.ElideRight
            font.bold: true
        }
        Label {
            width: parent.width
            text: qsTr("%1  ·  %2").arg(root.device.location).arg(root.device.ipAddress)
            elide: Text.ElideRight
            font.pixelSize: 11
        }
    }
    Label {
        id: state
        anchors.right: mark.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.device.condition
        font.bold: root.device.alarm.length > 0
    }
    Image {
        id: mark
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        source: "qrc:/icons/%1_16x16.png".arg(root.device.alarm.length === 0 ? "check" : root.device.online ? "temperature" : "offline")
    }
}
