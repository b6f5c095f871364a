import QtQuick
import TambleClient.Control 1.0

/*! A picture inside a field that is pressed. */
RButtonBase {
    id: root

    required property string iconKey
    required property color iconColor
    /*! What it does, for people who cannot see it. */
    required property string label

    implicitWidth: 32 * RThemeValues.unit
    focusPolicy: Qt.NoFocus
    text: root.label
    literalText: true
    hoverEnabled: RThemeValues.hoverEnabled

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            anchors.centerIn: parent
            key: root.iconKey
            sizeClass: "XS"
            ssIconForeground: root.iconColor
            opacity: root.hovered || root.activeFocus ? 1 : 0.7
        }
        RFocusRectangle {
            visible: root.activeFocus
        }
    }
}
