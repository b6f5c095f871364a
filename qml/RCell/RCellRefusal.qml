import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Mark of a cell that did not take a pasted text. The reason shows while the cell is current or pointed at. */
Item {
    id: root

    RStyleSet.typeName: "RTextField"

    property string text
    property color ssForegroundInvalid: root.RStyleSet.props.isSet("foreground-invalid") ? root.RStyleSet.props.foregroundInvalid : root.RStyleSet.props.lineInvalid

    anchors.fill: parent

    RIcon {
        x: root.width - width - 4 * RThemeValues.unit
        y: (root.height - height) / 2
        key: "warning"
        sizeClass: "XS"
        ssIconForeground: root.ssForegroundInvalid
    }
    HoverHandler {
        id: pointer
    }
    Shared.RToolTip {
        text: root.text
        visible: root.visible && (pointer.hovered || (root.parent?.activeFocus ?? false))
    }
}
