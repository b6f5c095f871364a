import QtQuick
import TambleClient.Control 1.0

/*! Shade over the window behind a modal dialog. */
Rectangle {
    id: root

    RStyleSet.typeName: "RFlyoutToolbar"

    property color ssShadow: root.RStyleSet.props.shadow

    color: root.ssShadow
}
