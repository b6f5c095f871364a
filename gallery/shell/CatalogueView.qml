import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! The pages that show the controls one family at a time: their list, and the chosen one. */
FestivalPage {
    id: root

    readonly property var page: Festival.cataloguePages[Festival.cataloguePage] ?? ({ title: "", source: "" })
    readonly property GalleryPage shownPage: loader.item as GalleryPage
    readonly property bool narrow: root.width < theme.dp(720)
    readonly property bool mirrored: root.LayoutMirroring.enabled

    /*! In a narrow window the list of pages lies over the page. */
    function closeIndex() {
        if (index.open)
            loader.forceActiveFocus()
        index.open = false
    }

    // The focus leaves the list of pages with it, and stays in a page where the user has put it.
    onNarrowChanged: {
        if (root.narrow && index.focus && !index.open)
            loader.focus = true
        else if (!root.narrow && (!loader.activeFocus || root.Window.activeFocusItem === loader))
            index.focus = true
    }
    Component.onCompleted: {
        if (root.narrow)
            loader.focus = true
    }

    title: root.page.title
    listening: root.shownPage !== null && root.shownPage.listening
    wholePageHeight: loader.y + (root.shownPage ? root.shownPage.contentHeight : 0)
    padding: 0

    RowLayout {
        id: heading
        x: loader.x + (root.mirrored ? 0 : theme.dp(8))
        width: loader.width - theme.dp(8)
        height: theme.dp(48)
        spacing: 0

        RButtonIcon {
            Layout.preferredWidth: theme.dp(32)
            visible: root.narrow
            label: qsTr("Pages")
            iconItem.key: "menu"
            onClicked: {
                index.open = !index.open
                if (index.open)
                    index.forceActiveFocus()
            }
        }
        RText {
            id: title
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.maximumWidth: Math.ceil(title.implicitWidth)
            leftPadding: root.mirrored ? 0 : theme.dp(16)
            rightPadding: root.mirrored ? theme.dp(16) : 0
            text: root.page.title
            elide: Text.ElideRight
            font.pixelSize: theme.fontSizeXXL
            font.bold: true
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.Heading
            Accessible.name: title.text
        }
        CatalogueTools {
            Layout.fillWidth: true
            reports: Festival.reports
        }
    }
    Loader {
        id: loader
        x: root.narrow || root.mirrored ? 0 : index.width
        y: heading.height
        width: root.narrow ? root.width : root.width - index.width
        height: root.height - y
        source: root.page.source
    }
    PageIndex {
        id: index

        property bool open: false

        x: root.mirrored ? root.width - index.width : 0
        y: root.narrow ? heading.height : 0
        height: root.height - y
        visible: !root.narrow || index.open
        focus: true
        pages: Festival.cataloguePages
        currentIndex: Festival.cataloguePage
        Keys.onEscapePressed: event => {
            event.accepted = root.narrow
            if (root.narrow)
                root.closeIndex()
        }
        onChosen: page => {
            root.closeIndex()
            Festival.catalogueAsked(page)
        }
    }
}
