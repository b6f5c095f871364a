import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Mark of a cell that did not take a pasted text. The reason shows while the cell is current or pointed at. */
Item {
    id: root

    RStyleSet.typeName: "RTextField"

    property string text
    property color ssForegroundInvalid: root.RStyleSet.props.isSet("foreground-invalid") ? root.RStyleSet.props.foregroundInvalid : root.RStyleSet.props.lineInvalid

    anchors.fill: parent

    Rectangle {
        id: corner

        RStyleSet.typeName: "RBodeplotGrid"

        property color ssBackground: corner.RStyleSet.props.background

        anchors.right: root.right
        width: 12 * RThemeValues.unit
        height: corner.width
        color: corner.ssBackground

        RIcon {
            anchors.centerIn: corner
            key: "warning"
            sizeClass: "XXS"
            ssIconForeground: root.ssForegroundInvalid
        }
    }
    HoverHandler {
        id: pointer
    }
    RToolTip {
        text: root.text
        visible: root.visible && (pointer.hovered || (root.parent?.activeFocus ?? false))
    }
}
