import QtQuick
import TambleClient.Control 1.0

/*! Background, border and shadow of menus and other small popups. */
Rectangle {
    id: root

    RStyleSet.typeName: "RMenu"

    /*! Whether the border shows. */
    property bool borderVisible: true

    property color ssBackground: root.RStyleSet.props.background
    property color ssForegroundItem: root.RStyleSet.props.foregroundItem

    color: root.ssBackground

    RBoxShadow {}
    Rectangle {
        id: edge

        RStyleSet.typeName: "RPopupMenu"

        property color ssPopupBorderColor: edge.RStyleSet.props.popupBorderColor

        anchors.fill: parent
        z: 1
        color: "transparent"
        border.width: root.borderVisible ? RThemeValues.unit : 0
        border.color: edge.ssPopupBorderColor
    }
}
