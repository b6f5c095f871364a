import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The gallery's window: a bar, the list of pages, and the page. */
RApplicationWindow {
    id: root

    /*! Pages as maps with name, title and source. */
    required property var pages
    property alias currentPage: index.currentIndex
    readonly property var page: root.pages[root.currentPage]
    readonly property GalleryPage shownPage: loader.item as GalleryPage
    /*! Height of the window in which the whole page is seen without scrolling. */
    readonly property real wholePageHeight: loader.y + (root.shownPage ? root.shownPage.contentHeight : 0)
    readonly property bool narrow: root.width < theme.dp(720)

    visible: true
    title: qsTr("%1 - TambleClient.Control gallery").arg(root.page.title)
    appStyleSheetDirectory: GalleryFiles.styleDirectory + "/"
    appStyleSheetKey: ""
    appStyleSheetTheme: "all"
    onStyleException: (type, message) => bar.missingKeys.add(message)

    Binding {
        target: GalleryAudio
        property: "running"
        value: root.shownPage !== null && root.shownPage.listening && root.visibility !== Window.Hidden && root.visibility !== Window.Minimized
    }
    Shortcut {
        sequences: ["Ctrl+PgDown", "Ctrl+Tab"]
        onActivated: index.show(root.currentPage + 1)
    }
    Shortcut {
        sequences: ["Ctrl+PgUp", "Ctrl+Shift+Tab"]
        onActivated: index.show(root.currentPage - 1)
    }
    Shortcut {
        sequence: "Ctrl+T"
        onActivated: root.setTheme(bar.themes.next)
    }

    GalleryBar {
        id: bar
        width: root.width
        menuVisible: root.narrow
        themes.onChosen: word => root.setTheme(word)
        onMenuRequested: index.open = !index.open
    }
    RText {
        id: heading
        x: loader.x + theme.dp(24)
        y: bar.height + theme.dp(16)
        width: root.width - heading.x - theme.dp(24)
        text: root.page.title
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeXXL
        font.bold: true
        Accessible.role: Accessible.Heading
        Accessible.name: heading.text
    }
    Loader {
        id: loader
        x: root.narrow ? 0 : index.width
        y: heading.y + heading.height
        width: root.width - loader.x
        height: root.height - loader.y
        source: root.page.source
    }
    PageIndex {
        id: index

        property bool open: false

        y: bar.height
        height: root.height - bar.height
        visible: !root.narrow || index.open
        focus: true
        pages: root.pages
        onChosen: index.open = false
    }
}
