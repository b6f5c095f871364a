import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Arrow at an end of a row that goes on beyond it; a click moves the row on. Keys need none: the row follows the
    focus. */
T.AbstractButton {
    id: root

    required property RAppBarView view
    property bool atRight: false

    x: root.atRight ? root.view.width - root.width : 0
    width: 32 * RThemeValues.unit
    height: root.view.height
    visible: root.view.interactive && !(root.atRight ? root.view.atXEnd : root.view.atXBeginning)
    focusPolicy: Qt.NoFocus
    autoRepeat: true
    text: qsTr("More")
    onClicked: root.view.moveBy((root.atRight ? root.view.width : -root.view.width) / 2)

    background: Rectangle {
        color: root.view.ground
    }
    contentItem: Item {
        RIcon {
            anchors.centerIn: parent
            key: root.atRight ? "chevron-right" : "chevron-left"
            sizeClass: "XS"
        }
    }
}
