import QtQuick
import QtQuick.Controls.Basic

/*! A coloured button with two texts. */
Button {
    id: root

    property string subText
    property color color
    property bool flashing: false
    property bool dark: false

    implicitWidth: 96
    onFlashingChanged: root.dark = false
    contentItem: Item {
        Column {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width

            Label {
                width: parent.width
                text: root.text
                color: "white"
                horizontalAlignment: Text.AlignHCenter
            }
            Label {
                width: parent.width
                visible: root.subText.length > 0
                text: root.subText
                color: "white"
                font.pixelSize: 10
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    background: Rectangle {
        color: root.color
        opacity: root.checked && !root.dark ? 1 : 0.7
        border.width: root.visualFocus ? 2 : 0
    }

    Timer {
        interval: 500
        repeat: true
        running: root.flashing
        onTriggered: root.dark = !root.dark
    }
}
