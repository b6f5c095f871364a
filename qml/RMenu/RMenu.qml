import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Drop-down menu of commands. It opens below its parent. */
RMenuBase {
    id: root

    ssBackground: frame ? frame.RStyleSet.props.background : "transparent"
    ssForegroundItem: frame ? frame.RStyleSet.props.foregroundItem : "transparent"
    ssForegroundItemHover: frame ? frame.RStyleSet.props.foregroundItemHover : "transparent"
    ssForegroundItemSelected: frame ? frame.RStyleSet.props.foregroundItemSelected : "transparent"
    ssBackgroundItem: frame ? frame.RStyleSet.props.backgroundItem : "transparent"
    ssBackgroundItemHover: frame ? frame.RStyleSet.props.backgroundItemHover : "transparent"
    ssBackgroundItemSelected: frame ? frame.RStyleSet.props.backgroundItemSelected : "transparent"

    minimumWidth: 144 * RThemeValues.unit
    y: !root.parent ? 0 : root.opensUpwards ? -root.height : root.parent.height
    margins: 8 * RThemeValues.unit
    cascade: true
    // A press on the parent is the parent's to answer.
    closePolicy: RPopupTemplate.CloseOnEscape | RPopupTemplate.CloseOnPressOutsideParent

    // Not a binding: the row that becomes current takes the focus, which may change the index once more.
    onCurrentIndexChanged: rows.currentIndex = root.currentIndex

    delegate: RMenuItemTemplate {
        hoverEnabled: RThemeValues.hoverEnabled
    }

    contentItem: RPopupFrame { // qmllint disable deferred-property-id
        id: frame
        color: root.ssBackground
        borderVisible: root.borderVisible

        ListView {
            id: rows
            anchors.fill: parent
            model: root.contentModel
            currentIndex: -1
            highlightMoveDuration: 0
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            RScrollBarTemplate.vertical: RScrollBar {}
        }
        // Without a border, since a shadow does not show on black.
        Rectangle {
            anchors.fill: parent
            visible: !root.borderVisible
            color: "transparent"
            border.width: RThemeValues.unit
            border.color: root.ssForegroundItem
            opacity: 0.3
        }
    }
}
