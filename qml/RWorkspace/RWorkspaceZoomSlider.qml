import QtQuick
import TambleClient.Control 1.0

/*! Slider of a zoom bar. */
RZoomSlider {
    id: root

    RStyleSet.typeName: "RFlyoutToolbarItem"

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.foreground

    RStyleSet.stateHelper.disabled: !root.enabled

    focusPolicy: Qt.StrongFocus
    wheelEnabled: root.activeFocus
    leftPadding: 6 * RThemeValues.unit
    rightPadding: 6 * RThemeValues.unit
    opacity: root.enabled ? 1 : 0.4
    Accessible.name: qsTr("zoom")
    Accessible.description: qsTr("%1 %").arg(root.percent)

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground

        Rectangle {
            x: root.leftPadding
            y: Math.round((root.height - height) / 2)
            width: root.availableWidth
            height: 2 * RThemeValues.unit
            color: root.ssColor
            opacity: 0.5
        }
        RFocusRectangle {
            visible: root.activeFocus
        }
    }
    handle: Rectangle { // qmllint disable deferred-property-id
        x: Math.round(root.leftPadding + root.visualPosition * (root.availableWidth - width))
        y: Math.round((root.height - height) / 2)
        width: 6 * RThemeValues.unit
        height: 16 * RThemeValues.unit
        color: root.ssColor
    }
}
