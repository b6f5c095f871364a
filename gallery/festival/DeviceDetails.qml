import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The chosen devices: how they are, and what can be set in them. */
RPane {
    id: root

    /*! Numbers of the devices. */
    required property var devices
    /*! Whether the details stand in the place of the list. */
    property bool closable: false
    readonly property bool amplifiersOnly: root.devices.every(device => device < GalleryInstallation.firstMixer)

    signal closed()

    title: root.devices.length === 0 ? qsTr("No device chosen") : root.devices.length === 1 ? nameField.shown ?? "" : qsTr("%1 devices").arg(root.devices.length)
    contentPadding: theme.dp(1)
    headerContent: [
        RText {
            height: theme.dp(32)
            verticalAlignment: Text.AlignVCenter
            rightPadding: theme.dp(16)
            text: root.devices.length === 0 ? "" : selection.online ? qsTr("online") : qsTr("offline, as it was last")
        },
        RButton {
            width: theme.dp(72)
            visible: root.closable
            text: qsTr("Back")
            onClicked: root.closed()
        }
    ]

    DeviceSelection {
        id: selection
        devices: root.devices
        observed: false
    }
    DeviceField {
        id: nameField
        target: selection
        field: "name"
    }
    RAccordion {
        anchors.fill: parent

        RAccordionItem {
            title: qsTr("Identity and network")
            iconKey: "network"
            expanded: true

            NetworkForm {
                width: parent.width
                target: selection
            }
        }
        // qmllint disable unqualified
        RAccordionItem {
            visible: root.amplifiersOnly
            title: qsTr("Channels")
            iconKey: "line-input"
            lazyContent: Component {
                // Loaded when it is first opened.
                Loader {
                    width: parent?.width ?? 0
                    Component.onCompleted: setSource("../network/ChannelForm.qml", { target: selection })
                }
            }
        }
        RAccordionItem {
            title: qsTr("Firmware")
            iconKey: "firmware"
            lazyContent: Component {
                Loader {
                    width: parent?.width ?? 0
                    Component.onCompleted: setSource("FirmwareSection.qml", { pane: root })
                }
            }
        }
        // qmllint enable unqualified
    }
}
