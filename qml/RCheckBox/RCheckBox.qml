import QtQuick
import TambleClient.Control 1.0

/*! Box with a text: on, off, or mixed while several devices differ. A click edits `selected`. */
RCheckBoxBase {
    id: root

    RStyleSet.typeName: "RCheckBox"

    /*! Another name of `text`. */
    property alias label: root.text
    /*! Whether the box stands behind the text. */
    property bool boxOnRight: false

    /*! Edge length of the box, and what it takes of the width beside a text (`boxSpace`, and `textMargin` at the other
        end), in pixels. */
    readonly property real boxSize: 20 * RThemeValues.unit
    readonly property real boxSpace: root.text === "" ? root.boxSize : 28 * RThemeValues.unit
    readonly property real textMargin: root.text === "" ? 0 : 4 * RThemeValues.unit
    /*! Where the box stands, once the layout is mirrored or not. */
    readonly property bool boxAtRightEdge: root.boxOnRight !== root.mirrored

    ssBackground: box.RStyleSet.props.background
    ssColor: box.RStyleSet.props.foreground
    ssBorderColor: box.RStyleSet.props.border

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.down && !root.readOnly
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.selected: root.consistent && root.selected
    RStyleSet.stateHelper.inconsistent: !root.consistent
    RStyleSet.stateHelper.focus: root.activeFocus

    implicitWidth: root.implicitContentWidth + root.leftPadding + root.rightPadding
    implicitHeight: 32 * RThemeValues.unit
    leftPadding: root.boxAtRightEdge ? root.textMargin : root.boxSpace
    rightPadding: root.boxAtRightEdge ? root.boxSpace : root.textMargin
    hoverEnabled: RThemeValues.hoverEnabled && !root.readOnly
    focusPolicy: Qt.StrongFocus
    enterClicks: false
    focusVisible: root.RStyleSet.stateHelper.focus

    contentItem: RText { // qmllint disable deferred-property-id
        id: words
        text: root.plainText
        color: root.enabled ? words.RStyleSet.props.foreground : root.ssColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    Rectangle {
        id: box

        RStyleSet.typeName: "RCheckBox"
        // The sheets know mixed by a word of their own, too, which no flag writes.
        RStyleSet.state: root.RStyleSet.state + (root.consistent ? "" : "inconsistend")

        objectName: "box"
        x: root.boxAtRightEdge ? root.width - width : 0
        y: (root.height - height) / 2
        width: root.boxSize
        height: width
        color: root.ssBackground
        border.width: RThemeValues.unit
        border.color: root.ssBorderColor
    }
}
