import QtQuick
import TambleClient.Control 1.0

/*! What all tabs have in common: states, style, size, focus frame, line, and the marks at the end. A tab of its own look
    is this with a content item. */
RTabButtonBase {
    id: root

    RStyleSet.typeName: "RTabButton"

    /*! Another name of `text`. */
    property alias label: root.text

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.sheetLineColor
    ssLineVisible: root.RStyleSet.props.isSet("line-visible") && root.RStyleSet.props.lineVisible

    RStyleSet.stateHelper.pressed: root.down
    RStyleSet.stateHelper.selected: root.consistent && root.selected

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    horizontalPadding: 4 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        border.width: root.ssBorderVisible || (root.RStyleSet.stateHelper.focus && root.ssBorderFocus.a > 0) ? RThemeValues.unit : 0
        border.color: root.RStyleSet.stateHelper.focus && root.ssBorderFocus.a > 0 ? root.ssBorderFocus : root.ssBorderColor
        lineVisible: root.ssLineVisible
        lineEdge: root.ssLineAtTop ? Qt.TopEdge : Qt.BottomEdge
        focusVisible: root.RStyleSet.stateHelper.focus && root.ssBorderFocus.a === 0
    }
}
