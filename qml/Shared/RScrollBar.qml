import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Bar that shows and moves the visible part of a list, while there is more than that. */
T.ScrollBar {
    id: root

    property color ssLineColor: handle.RStyleSet.props.line

    implicitWidth: 8 * RThemeValues.unit
    implicitHeight: 8 * RThemeValues.unit
    padding: RThemeValues.unit
    minimumSize: root.availableHeight > 0 ? Math.min(1, 24 * RThemeValues.unit / root.availableHeight) : 0
    visible: root.size < 1

    contentItem: Rectangle { // qmllint disable deferred-property-id
        radius: width / 2
        color: root.ssLineColor
        opacity: root.pressed || root.hovered ? 1 : 0.6
    }

    RStyleProbe {
        id: handle
        type: "RTabButton"
    }
}
