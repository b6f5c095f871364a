import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! List of devices, presets or channels, in which rows can be selected; see RListViewBase. */
RListViewBase {
    id: root

    /*! The delegate where the page gives none. Its items are used again. */
    readonly property Component textRow: Component {
        RListRow {}
    }

    ssColor: textStyle.RStyleSet.props.foreground
    ssBackgroundItemSelected: highlightStyle.RStyleSet.props.backgroundItemSelected
    ssForegroundItemSelected: highlightStyle.RStyleSet.props.foregroundItemSelected
    ssBackgroundItemHover: highlightStyle.RStyleSet.props.backgroundItemHover
    ssForegroundItemHover: highlightStyle.RStyleSet.props.foregroundItemHover

    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 160 * RThemeValues.unit
    activeFocusOnTab: true
    hoverEnabled: RThemeValues.hoverEnabled
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    delegate: root.textRow
    reuseItems: root.delegate === root.textRow
    cacheBuffer: root.drawn ? 320 : 0 // pixels, Qt's own

    RScrollBarTemplate.vertical: RScrollBar {}
    RScrollBarTemplate.horizontal: RScrollBar {}

    // qmllint disable unqualified
    highlight: Item {
        z: 2

        RFocusRectangle {
            visible: root.activeFocus
        }
    }
    // qmllint enable unqualified

    RFocusRectangle {
        parent: root
        z: 2
        visible: root.activeFocus && root.currentIndex < 0
    }
    RText {
        parent: root
        anchors.fill: parent
        padding: 8 * RThemeValues.unit
        visible: root.count === 0
        text: root.placeholderText
        color: root.ssColor
        opacity: 0.6
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        maximumLineCount: 100 // a word without end takes seconds to wrap
        elide: Text.ElideRight
    }
    RStyleProbe {
        id: textStyle
        parent: root
        type: "RText"
    }
    RStyleProbe {
        id: highlightStyle
        parent: root
        type: "RMenu"
    }
}
