import QtQuick
import TambleClient.Control 1.0

/*! Button that shows and switches a state of the system, such as "ONLINE" or "MUTE ALL". `selected` and `consistent`
    are the page's to set; while several devices differ, a dash stands in the corner. */
RAppBarStateButtonBase {
    id: root

    RStyleSet.typeName: "RAppBarStateButton"

    property color ssBackgroundFlashing: root.RStyleSet.props.backgroundFlashing

    /*! The item that shows the text. */
    property alias textControl: words
    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon

    /*! Pixels: beside what the button shows (`margin`), for its icon (`iconSpace`), and of its longer line
        (`linesWidth`). */
    readonly property real margin: 8 * RThemeValues.unit
    readonly property real iconSpace: icon.visible ? icon.width + root.margin : 0
    readonly property real linesWidth: Math.max(words.implicitWidth, lower.implicitWidth)

    /*! Texts and icons on either ground. Where the flashing one is about as dark as they are, they take the colour of the
        other. */
    readonly property color shownColor: root.flashLit && Math.abs(root.ssColor.hslLightness - root.ssBackgroundFlashing.hslLightness) < 0.25 ? root.ssBackground : root.ssColor

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.sheetLineColor
    ssLineVisible: root.sheetLineVisible

    RStyleSet.stateHelper.pressed: root.down

    // It grows with its text, up to where that is elided.
    implicitWidth: Math.max(96 * RThemeValues.unit, Math.min(240 * RThemeValues.unit, root.linesWidth + root.iconSpace + 2 * root.margin))
    implicitHeight: 48 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus
    shortened: words.truncated

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.flashLit ? root.ssBackgroundFlashing : root.ssBackground
        border.width: root.ssBorderVisible ? RThemeValues.unit : 0
        border.color: root.ssBorderColor
        lineVisible: root.ssLineVisible
        focusVisible: root.RStyleSet.stateHelper.focus
    }
    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon

            readonly property real start: (root.width - root.iconSpace - lines.width) / 2

            x: root.mirrored ? root.width - icon.start - icon.width : icon.start
            y: (parent.height - height) / 2
            visible: root.iconKey.length > 0
            key: root.iconKey
            ssIconForeground: root.shownColor
        }
        Column {
            id: lines
            x: root.mirrored ? root.width - icon.start - root.iconSpace - width : icon.start + root.iconSpace
            y: (parent.height - height) / 2
            width: Math.min(root.linesWidth, root.width - root.iconSpace - 2 * root.margin)

            RText {
                id: words
                width: parent.width
                text: root.plainText
                color: root.shownColor
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignHCenter
            }
            RText {
                id: lower
                width: parent.width
                visible: text.length > 0
                text: root.armed ? qsTr("press again") : root.subText
                color: root.shownColor
                font.pixelSize: root.armed ? RThemeValues.fontSizeS : RThemeValues.fontSizeXS
                font.bold: root.armed
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignHCenter
            }
        }
        RIcon {
            x: root.mirrored ? root.width - width - root.margin / 2 : root.margin / 2
            y: root.margin / 2
            visible: !root.consistent
            key: "dash"
            sizeClass: "XS"
            ssIconForeground: root.shownColor
        }
    }
}
