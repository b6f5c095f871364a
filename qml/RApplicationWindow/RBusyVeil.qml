import QtQuick
import TambleClient.Control 1.0

/*! Covers a window and takes its mouse, touch and keys while it is open. It blocks at once, but shows only after a
    while, so that short waits do not flicker. */
RPopupTemplate {
    id: root

    required property bool busy

    parent: ROverlayTemplate.overlay
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    // Above whatever a page opens meanwhile.
    z: 1e6
    margins: 0
    padding: 0
    modal: true
    focus: true
    closePolicy: RPopupTemplate.NoAutoClose
    visible: root.busy

    enter: Transition {
        SequentialAnimation {
            PropertyAction {
                property: "opacity"
                value: 0
            }
            PauseAnimation {
                duration: 300
            }
            NumberAnimation {
                property: "opacity"
                to: 1
                duration: 150
                easing.type: Easing.OutCubic
            }
        }
    }

    contentItem: Item { // qmllint disable deferred-property-id
        Accessible.role: Accessible.Indicator
        Accessible.name: qsTr("busy")

        Rectangle {
            id: ground

            RStyleSet.typeName: "RScreen2"

            property color ssBackground: ground.RStyleSet.props.background

            anchors.fill: parent
            color: ground.ssBackground
            opacity: 0.75
        }
        RLoadingAnimation {
            anchors.centerIn: parent
            running: root.busy
        }
        // Popups that open meanwhile take the focus.
        Connections {
            target: ground.Window.window
            enabled: root.busy

            function onActiveFocusItemChanged() {
                if (!root.activeFocus)
                    root.forceActiveFocus()
            }
        }
    }
}
