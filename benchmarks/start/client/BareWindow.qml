import QtQuick
import QtQuick.Controls.Basic

/*! Buttons and labels with nothing but numbers on them. A button has a text, which counts among the texts. */
ApplicationWindow {
    id: root

    required property int controls
    required property int texts

    visible: true
    width: 1280
    height: 800

    Flow {
        anchors.fill: parent

        Repeater {
            model: root.controls

            Button {
                required property int index

                text: index
            }
        }
        Repeater {
            model: Math.max(0, root.texts - root.controls)

            Label {
                required property int index

                text: index
            }
        }
    }
}
