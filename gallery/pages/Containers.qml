import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../containers"

GalleryPage {
    description: qsTr("What holds other controls: sections that open, rows that scroll, lists, panes, views and pages, content that is dragged.")

    TileGrid {
        Section {
            title: "RAccordion"
            note: qsTr("Arrows walk over the headers, Space opens. Drag a grip, or press Alt with an arrow, to put a channel elsewhere; Esc takes a drag back.")

            AccordionSamples {
                width: parent.width
            }
        }
        Section {
            title: "RAccordionItem, RAccordionSectionHeader"

            AccordionStates {
                width: parent.width
            }
        }
        Section {
            title: "RHorizontalScrollView"
            note: qsTr("The wheel scrolls sideways beside the faders; what gets the focus comes into view.")

            StripSamples {
                width: parent.width
            }
        }
        Section {
            title: "RDraggableItem, RSelectionRect"
            note: qsTr("With a finger, press longer. The device refuses what is damaged.")

            DragSamples {
                width: parent.width
            }
        }
        Section {
            title: "RPane, RPaneSub"
            note: qsTr("Click a header with a chevron, or press Space on it.")

            PaneSamples {}
        }
        Section {
            title: "RScreen"
            note: qsTr("Flyouts stay with the page that they belong to.")

            ScreenSamples {}
        }
    }
    TileGrid {
        minimumTileWidth: theme.dp(720)

        Section {
            title: "RListView"
            note: qsTr("Arrows, Home, End and letters move; Ctrl and Shift select several rows where that is allowed. A right click or a long press opens a menu.")

            ListSamples {}
        }
        Section {
            title: "RViewContainer"
            note: qsTr("Each view is loaded when it is first wanted, and the present one stays until it is there. The first one keeps what is typed into it.")

            ViewSamples {}
        }
    }
}
