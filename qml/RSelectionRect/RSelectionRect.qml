import QtQuick
import TambleClient.Control 1.0

/*! Rubber band between two points of its parent. */
Rectangle {
    id: root

    RStyleSet.typeName: "RSelectionRect"

    /*! Two opposite corners, `start` and `end`, in pixels. */
    property point start
    property point end
    /*! Whether the band shows. */
    property bool active: false

    property color ssBackground: root.RStyleSet.props.background
    property color ssBorderColor: root.RStyleSet.props.border

    x: Math.min(root.start.x, root.end.x)
    y: Math.min(root.start.y, root.end.y)
    width: Math.abs(root.end.x - root.start.x)
    height: Math.abs(root.end.y - root.start.y)
    visible: root.active
    color: root.ssBackground
    border.width: RThemeValues.unit
    border.color: root.ssBorderColor
    Accessible.ignored: true
}
