import QtQuick
import TambleClient.Control 1.0

Item {
    width: 320
    height: 200

    RButton {
        objectName: "button"
        text: "Mute"
    }
}
