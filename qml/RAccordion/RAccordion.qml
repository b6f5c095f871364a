import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Scrolling stack of sections that open and close, for side panels. Its children are RAccordionItems, with an
    RAccordionSectionHeader in front of those that belong together; a Repeater may make them.

    Keys: Up, Down, Home and End move between the headers, Space and Enter open and close, Right opens, Left closes.
    Alt+Up and Alt+Down ask for another place of a section. Esc takes a drag back. */
RScrollView {
    id: root

    RStyleSet.typeName: "RAccordion"

    /*! The sections. */
    default property alias items: column.data
    property alias exclusive: column.exclusive
    property alias reorderable: column.reorderable
    property alias animated: column.animated
    readonly property alias count: column.count
    readonly property alias expandedItems: column.expandedItems

    property color ssBackground: root.RStyleSet.props.background

    /*! A section has been opened (`itemExpanded`) or closed (`itemCollapsed`), by whomever. */
    signal itemExpanded(item: Item)
    signal itemCollapsed(item: Item)
    /*! The user wants a section elsewhere: its number among the sections and the one it is to have, as in
        ListModel.move(). The page moves it. */
    signal itemMoved(from: int, to: int)

    /*! Opens all sections that can be opened; nothing in an exclusive accordion. */
    function expandAll() {
        column.expandAll()
    }
    /*! Closes all sections that can be closed. */
    function collapseAll() {
        column.collapseAll()
    }
    /*! Scrolls so far that an item is seen, be it a section or something in one. */
    function ensureVisible(item: Item) {
        column.ensureVisible(item)
    }

    RStyleSet.stateHelper.disabled: !root.enabled

    implicitWidth: 288 * RThemeValues.unit
    implicitHeight: 480 * RThemeValues.unit
    contentHeight: column.implicitHeight
    spacing: RThemeValues.gap
    clip: true

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground
    }

    RAccordionColumn {
        id: column
        width: root.availableWidth
        spacing: root.spacing
        onItemExpanded: item => root.itemExpanded(item)
        onItemCollapsed: item => root.itemCollapsed(item)
        onItemMoved: (from, to) => root.itemMoved(from, to)
    }
}
