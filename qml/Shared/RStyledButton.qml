import QtQuick
import TambleClient.Control 1.0

/*! What all buttons have in common: states, style, size, focus frame, line and the selection. A button of its own look
    is this with a content item. */
RButtonBase {
    id: root

    RStyleSet.typeName: "RButton"

    /*! Another name of `text`. */
    property alias label: root.text
    /*! The rectangle behind the button (`backgroundRect`) and the bar along its edge (`line`). */
    property alias backgroundRect: back
    property alias line: back.line

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.sheetLineColor
    ssLineVisible: root.sheetLineVisible

    RStyleSet.stateHelper.pressed: root.down

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus

    background: RControlBackground { // qmllint disable deferred-property-id
        id: back
        color: root.ssBackground
        // A button that stands on its side has its line at its outer edge, one at any other angle has none.
        lineVisible: root.ssLineVisible && (root.rotation === 0 || root.rotation === 90 || root.rotation === -90)
        lineEdge: root.rotation === 0 ? Qt.BottomEdge : Qt.LeftEdge
        focusVisible: root.RStyleSet.stateHelper.focus
    }
}
