import QtQuick
import TambleClient.Control 1.0

/*! A small styled item that takes its colours from style sheets and follows the pointer. */
Rectangle {
    id: root

    required property string label
    property bool selected: false

    property color ssBackground: root.RStyleSet.props.color("background")
    property color ssColor: root.RStyleSet.props.color("foreground")
    property color ssLineColor: root.RStyleSet.props.color("line")
    property bool ssLineVisible: root.RStyleSet.props.boolean("line-visible")

    signal clicked()
    signal entered()

    width: 144
    height: 48
    color: root.ssBackground
    border.color: root.ssLineColor
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: root.label
    Accessible.onPressAction: root.clicked()
    Keys.onSpacePressed: root.clicked()

    RStyleSet.typeName: "Sample"
    RStyleSet.stateHelper.hovered: hover.hovered
    RStyleSet.stateHelper.pressed: tap.pressed
    RStyleSet.stateHelper.selected: root.selected
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus

    onActiveFocusChanged: {
        if (root.activeFocus)
            root.entered()
    }

    HoverHandler {
        id: hover
        onHoveredChanged: {
            if (hover.hovered)
                root.entered()
        }
    }
    TapHandler {
        id: tap
        onTapped: root.clicked()
    }
    GalleryText {
        anchors.centerIn: parent
        text: root.label
        color: root.ssColor
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 4
        visible: root.ssLineVisible
        color: root.ssLineColor
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: GalleryPalette.accent
        border.width: 2
        visible: root.activeFocus
    }
}
