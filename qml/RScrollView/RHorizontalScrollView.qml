import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Scrolls a row of items, such as channel strips, sideways. Items that are to fill the height bind theirs to their
    parent's.

    Keys: what gets the focus is scrolled into view. */
RScrollViewTemplate {
    id: root

    /*! The items of the row. */
    default property alias content: row.data
    property alias snapToItems: row.snapToItems
    /*! Whether there is an arrow at an end that has more. */
    property bool showArrows: true
    readonly property alias firstVisibleIndex: row.firstVisibleIndex
    readonly property alias lastVisibleIndex: row.lastVisibleIndex

    /*! Width of an arrow in pixels (`arrowWidth`), and the room for one at either end once not all fits
        (`arrowRoom`). */
    readonly property real arrowWidth: 32 * RThemeValues.unit
    readonly property real arrowRoom: root.showArrows && row.implicitWidth > root.width ? root.arrowWidth : 0

    /*! Scrolls so far that an item is seen, be it one of the row or something in one. */
    function ensureVisible(item: Item) {
        row.ensureVisible(item)
    }
    /*! Scrolls on by so many widths of the view, back for negative ones. */
    function scrollBy(pages: real) {
        row.scrollBy(pages)
    }

    implicitWidth: 480 * RThemeValues.unit
    implicitHeight: row.implicitHeight + root.topPadding + root.bottomPadding
    spacing: RThemeValues.gap
    leftPadding: root.arrowRoom
    rightPadding: root.arrowRoom

    contentItem: Flickable { // qmllint disable deferred-property-id
        contentWidth: row.implicitWidth
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        onMovementEnded: row.snap()

        RScrollBarTemplate.horizontal: RScrollBar {
            parent: root
            x: root.leftPadding
            y: root.height - height
            width: root.availableWidth
        }

        RStripRow {
            id: row
            height: root.availableHeight
            spacing: root.spacing
        }
    }

    RButtonIcon {
        RStyleSet.name: "ghost"
        parent: root
        width: root.arrowWidth
        height: root.height
        visible: root.arrowRoom > 0 && row.moreAtLeft
        label: qsTr("Scroll left")
        iconItem.key: "chevron-left"
        focusPolicy: Qt.NoFocus
        autoRepeat: true
        onClicked: row.step(root.mirrored ? 1 : -1)
    }
    RButtonIcon {
        RStyleSet.name: "ghost"
        parent: root
        x: root.width - width
        width: root.arrowWidth
        height: root.height
        visible: root.arrowRoom > 0 && row.moreAtRight
        label: qsTr("Scroll right")
        iconItem.key: "chevron-right"
        focusPolicy: Qt.NoFocus
        autoRepeat: true
        onClicked: row.step(root.mirrored ? -1 : 1)
    }
}
