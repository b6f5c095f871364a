import QtQuick
import TambleClient.Control 1.0

/*! Arrow at an end of a row that goes on beyond it; a click moves the row on. Keys need none: the row follows the
    focus. */
RAbstractButtonTemplate {
    id: root

    required property Flickable view
    required property color ground
    property bool atRight: false

    x: root.atRight ? root.view.width - root.width : 0
    width: 32 * RThemeValues.unit
    height: root.view.height
    visible: root.view.interactive && !(root.atRight ? root.view.atXEnd : root.view.atXBeginning)
    focusPolicy: Qt.NoFocus
    autoRepeat: true
    text: qsTr("More")

    background: Rectangle {
        color: root.ground
    }
    contentItem: Item {
        RIcon {
            anchors.centerIn: parent
            key: root.atRight ? "chevron-right" : "chevron-left"
            sizeClass: "XS"
        }
    }
}
