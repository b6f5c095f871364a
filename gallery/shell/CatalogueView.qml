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

    /*! In a narrow window the list of pages lies over the page. */
    function closeIndex() {
        if (index.open)
            loader.forceActiveFocus()
        index.open = false
    }

    title: root.page.title
    listening: root.shownPage !== null && root.shownPage.listening
    wholePageHeight: loader.y + (root.shownPage ? root.shownPage.contentHeight : 0)
    padding: 0

    RowLayout {
        id: heading
        x: loader.x + theme.dp(8)
        width: root.width - x
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
            leftPadding: theme.dp(16)
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
        x: root.narrow ? 0 : index.width
        y: heading.height
        width: root.width - x
        height: root.height - y
        focus: root.narrow
        source: root.page.source
    }
    PageIndex {
        id: index

        property bool open: false

        y: root.narrow ? heading.height : 0
        height: root.height - y
        visible: !root.narrow || index.open
        focus: !root.narrow
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
