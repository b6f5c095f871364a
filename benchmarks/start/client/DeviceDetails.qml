import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import BasicClient

/*! The chosen device: how it is, and what can be set in it. */
Page {
    id: root

    required property Installation installation
    required property Device device
    /*! Whether the details stand in the place of the list. */
    property bool closable: false

    signal closed()

    title: root.device.name
    padding: 1
    header: RowLayout {
        height: 40

        Label {
            Layout.fillWidth: true
            Layout.leftMargin: 8
            text: root.title
            elide: Text.ElideRight
        }
        Label {
            Layout.rightMargin: 16
            text: root.device.online ? qsTr("online") : qsTr("offline, as it was last")
        }
        Button {
            visible: root.closable
            text: qsTr("Back")
            onClicked: root.closed()
        }
    }
    background: Rectangle {
        color: root.palette.window
        border.color: root.palette.dark
    }

    Flickable {
        anchors.fill: parent
        clip: true
        contentHeight: sections.height
        ScrollBar.vertical: ScrollBar {}

        Column {
            id: sections
            width: parent.width
            spacing: 1

            Section {
                width: parent.width
                title: qsTr("Identity and network")
                iconName: "network"
                expanded: true

                DeviceForm {
                    x: 8
                    installation: root.installation
                    device: root.device
                }
            }
            Section {
                id: channels
                width: parent.width
                visible: root.device.kind === "amplifier"
                title: qsTr("Channels")
                iconName: "line-input"

                Loader {
                    active: channels.expanded
                    sourceComponent: Label {
                        padding: 8
                        text: qsTr("Nothing here")
                    }
                }
            }
            Section {
                id: firmware
                width: parent.width
                title: qsTr("Firmware")
                iconName: "firmware"

                Loader {
                    active: firmware.expanded
                    sourceComponent: Label {
                        padding: 8
                        text: qsTr("Nothing here")
                    }
                }
            }
        }
    }
}
