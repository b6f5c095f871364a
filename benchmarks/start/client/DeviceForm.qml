import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import BasicClient

/*! Name and network settings of a device. */
Column {
    id: root

    required property Installation installation
    required property Device device
    readonly property var address: /^((25[0-5]|2[0-4]\d|1?\d?\d)(\.(?!$)|$)){4}$/

    spacing: 8

    TextLine {
        title: qsTr("Name")
        text: root.device.name
        validator: RegularExpressionValidator {
            regularExpression: /^\S(.{0,22}\S)?$/
        }
        onEdited: text => root.installation.edit(root.device, "name", text, title)
    }
    TextLine {
        title: qsTr("Location")
        text: root.device.location
        onEdited: text => root.installation.edit(root.device, "location", text, title)
    }
    FormLine {
        title: qsTr("DHCP")

        CheckBox {
            id: dhcp
            checked: root.device.dhcp
            Accessible.name: qsTr("DHCP")
            onToggled: root.installation.edit(root.device, "dhcp", dhcp.checked, qsTr("DHCP"))
        }
    }
    TextLine {
        title: qsTr("IP address")
        text: root.device.ipAddress
        readOnly: root.device.dhcp
        validator: RegularExpressionValidator {
            regularExpression: root.address
        }
        onEdited: text => root.installation.edit(root.device, "ipAddress", text, title)
    }
    TextLine {
        title: qsTr("Subnet mask")
        text: root.device.subnetMask
        readOnly: root.device.dhcp
        validator: RegularExpressionValidator {
            regularExpression: root.address
        }
        onEdited: text => root.installation.edit(root.device, "subnetMask", text, title)
    }
    TextLine {
        title: qsTr("Gateway")
        text: root.device.gateway
        readOnly: root.device.dhcp
        validator: RegularExpressionValidator {
            regularExpression: root.address
        }
        onEdited: text => root.installation.edit(root.device, "gateway", text, title)
    }
    TextLine {
        title: qsTr("PIN")
        text: root.device.pin
        validator: RegularExpressionValidator {
            regularExpression: /^\d{4,8}$/
        }
        onEdited: text => root.installation.edit(root.device, "pin", text, title)
    }
    FormLine {
        title: qsTr("Notes")

        Flickable {
            Layout.preferredWidth: 168
            Layout.preferredHeight: 96
            ScrollBar.vertical: ScrollBar {}
            TextArea.flickable: TextArea {
                id: notes
                text: root.device.notes
                wrapMode: TextArea.Wrap
                Accessible.name: qsTr("Notes")
                onEditingFinished: root.installation.edit(root.device, "notes", notes.text, qsTr("Notes"))
                background: Rectangle {
                    color: notes.palette.base
                    border.color: notes.activeFocus ? notes.palette.highlight : notes.palette.mid
                }
            }
        }
    }
}
