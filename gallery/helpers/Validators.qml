import QtQuick
import TambleClient.Control 1.0

/*! The validators of numbers, addresses and PINs. */
Flow {
    id: root

    readonly property real sampleWidth: Math.floor((root.width - 2 * root.spacing) / 3)

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("Number, -80 to 18, 1 decimal")
        text: "24"
        validator: RTextFieldDoubleValidator {
            bottom: -80
            top: 18
            decimals: 1
        }
    }
    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("Whole number, from 1")
        text: "12"
        validator: RTextFieldIntValidator {
            bottom: 1
        }
    }
    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("IP address")
        text: "192.168.10"
        validator: RTextFieldIpAddressValidator {}
    }
    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("PIN")
        text: "471"
        validator: RTextFieldPinValidator {}
    }
    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("PIN that is not too easy")
        text: "1234"
        validator: RTextFieldPinValidator {
            trivialAllowed: false
        }
    }
    ValidatorSample {
        width: root.sampleWidth
        title: qsTr("At most 16 bytes of UTF-8")
        text: "Büro"
        maximumBytes: 16
    }
}
