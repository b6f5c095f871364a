import QtQuick
import TambleClient.Control 1.0

/*! Tab with a text. Choosing is the page's: a click emits `clicked`, and turns `selected` over only where the tab is
    `selectable`. */
RStyledTab {
    id: root

    /*! The item that shows the text. */
    property alias textControl: words.text

    contentItem: RTabText { // qmllint disable deferred-property-id
        id: words
        tab: root
    }
}
