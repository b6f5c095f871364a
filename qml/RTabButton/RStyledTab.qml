import QtQuick
import TambleClient.Control 1.0

/*! What all tabs have in common: states, style, size, focus frame, line, and the marks at the end. A tab of its own look
    is this with a content item. */
RTabButtonBase {
    id: root

    RStyleSet.typeName: "RTabButton"

    /*! Another name of `text`. */
    property alias label: root.text
    /*! Name of the picture, in tabs that show one. */
    property string iconKey: ""

    property color ssBorderColor: root.RStyleSet.props.isSet("border") ? root.RStyleSet.props.border : "transparent"
    property bool ssBorderVisible: root.RStyleSet.props.isSet("border-visible") && root.RStyleSet.props.borderVisible
    property color ssBorderFocus: root.RStyleSet.props.isSet("border-focus") ? root.RStyleSet.props.borderFocus : "transparent"
    property bool ssLineAtTop: root.RStyleSet.props.lineAtTop

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.sheetLineColor
    ssLineVisible: root.RStyleSet.props.isSet("line-visible") && root.RStyleSet.props.lineVisible

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.down
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.selected: root.consistent && root.selected
    RStyleSet.stateHelper.inconsistent: !root.consistent
    RStyleSet.stateHelper.focus: root.activeFocus

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    leftPadding: root.mirrored ? marks.space : 0
    rightPadding: root.mirrored ? 0 : marks.space
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus

    background: RControlBackground { // qmllint disable deferred-property-id
        readonly property bool framed: root.RStyleSet.stateHelper.focus && root.ssBorderFocus.a > 0

        color: root.ssBackground
        border.width: framed || root.ssBorderVisible ? RThemeValues.unit : 0
        border.color: framed ? root.ssBorderFocus : root.ssBorderColor
        lineVisible: root.ssLineVisible
        lineEdge: root.ssLineAtTop ? Qt.TopEdge : Qt.BottomEdge
        focusVisible: root.RStyleSet.stateHelper.focus && !framed
    }

    Loader {
        id: marks

        readonly property real space: marks.active ? marks.width : 0

        x: root.mirrored ? 0 : root.width - marks.space
        height: Math.min(root.height, 32 * RThemeValues.unit)
        active: root.closable || root.badge.length > 0 || !root.consistent
        // qmllint disable unqualified
        sourceComponent: RTabMarks {
            tab: root
        }
        // qmllint enable unqualified
    }
}
