import QtQuick
import TambleClient.Control 1.0

/*! Soft shadow below a rectangular item: its parent, or the sibling that is its `target`. */
RUnderlay {
    id: root

    RStyleSet.typeName: "RFlyoutToolbar"

    /*! How far the shadow reaches beyond the target, in pixels. */
    property real spread: 8 * RThemeValues.unit
    /*! From 0, no shadow, to 1, black at the edge of the target. */
    property real darkness: root.ssShadow.a
    /*! Shift of the shadow in pixels, `offsetX` to the right and `offsetY` downwards. */
    property real offsetX: 0
    property real offsetY: 2 * RThemeValues.unit
    /*! False shows no shadow. */
    property bool active: true

    property color ssShadow: root.RStyleSet.props.shadow

    /*! Whether the target is the parent. */
    readonly property bool belowParent: root.target === root.parent
    /*! Whether anything is drawn. */
    readonly property bool shown: root.active && root.spread > 0 && root.darkness > 0 && root.width > 0 && root.height > 0

    target: root.parent
    x: root.belowParent || !root.target ? root.offsetX : root.target.x + root.offsetX
    y: root.belowParent || !root.target ? root.offsetY : root.target.y + root.offsetY
    z: root.belowParent || !root.target ? -1 : root.target.z
    width: root.target ? root.target.width : 0
    height: root.target ? root.target.height : 0

    Loader {
        active: root.shown
        sourceComponent: root.GraphicsInfo.api === GraphicsInfo.Software ? edgeComponent : shadowComponent
    }
    // qmllint disable unqualified
    Component {
        id: shadowComponent
        ShaderEffect {
            property real spread: root.spread
            property real darkness: root.darkness
            property size boxSize: Qt.size(root.width, root.height)

            x: -root.spread
            y: -root.spread
            width: root.width + 2 * root.spread
            height: root.height + 2 * root.spread
            fragmentShader: "qrc:/shaders/shadow.frag.qsb"
        }
    }
    // Without shaders.
    Component {
        id: edgeComponent
        Rectangle {
            x: -RThemeValues.unit - root.offsetX
            y: -RThemeValues.unit - root.offsetY
            width: root.width + 2 * RThemeValues.unit
            height: root.height + 2 * RThemeValues.unit
            color: "transparent"
            border.width: RThemeValues.unit
            border.color: root.ssShadow
        }
    }
    // qmllint enable unqualified
}
