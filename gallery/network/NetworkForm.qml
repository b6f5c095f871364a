import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! Names and network settings of the chosen amplifiers. */
ColumnLayout {
    id: root

    required property DeviceSelection target
    /*! Whether all of them get their addresses from DHCP. */
    readonly property bool addressed: dhcp.source.consistent && Boolean(dhcp.source.shown)

    spacing: theme.dp(8)

    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "name"
        title: qsTr("&Name")
        mustBeFilled: true
        validator: RStringRuleValidator {
            rule: RStringRuleValidatorRule.RULE_NAME
            maximumLength: 24
        }
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "location"
        title: qsTr("&Location")
    }
    FlagLine {
        id: dhcp
        Layout.fillWidth: true
        target: root.target
        field: "dhcp"
        title: qsTr("&DHCP")
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "ipAddress"
        title: qsTr("&IP address")
        readOnly: root.addressed
        validator: RTextFieldIpAddressValidator {}
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "subnetMask"
        title: qsTr("&Subnet mask")
        readOnly: root.addressed
        validator: RTextFieldIpAddressValidator {}
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "gateway"
        title: qsTr("&Gateway")
        readOnly: root.addressed
        validator: RTextFieldIpAddressValidator {}
    }
    TextLine {
        Layout.fillWidth: true
        target: root.target
        field: "pin"
        title: qsTr("&PIN")
        validator: RTextFieldPinValidator {}
    }
    NotesLine {
        Layout.fillWidth: true
        target: root.target
        field: "notes"
        title: qsTr("N&otes")
    }
}
