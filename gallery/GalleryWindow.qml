import QtQuick
import TambleClient.Control 1.0

Window {
    id: root

    /*! Pages as maps with name, title and source. */
    required property var pages
    property alias currentPage: pageList.currentIndex
    readonly property var page: root.pages[root.currentPage]

    /*! Shows the theme `word`, "light" or "dark". */
    function showTheme(word: string) {
        GalleryPalette.dark = word === "dark"
    }

    function showPage(index: int) {
        root.currentPage = (index + root.pages.length) % root.pages.length
    }

    width: 1280
    height: 800
    minimumWidth: 640
    minimumHeight: 400
    visible: true
    title: qsTr("%1 - TambleClient.Control gallery").arg(root.page.title)
    color: GalleryPalette.background

    Shortcut {
        sequences: ["Ctrl+PgDown", "Ctrl+Tab"]
        onActivated: root.showPage(root.currentPage + 1)
    }
    Shortcut {
        sequences: ["Ctrl+PgUp", "Ctrl+Shift+Tab"]
        onActivated: root.showPage(root.currentPage - 1)
    }
    Shortcut {
        sequence: "Ctrl+T"
        onActivated: GalleryPalette.dark = !GalleryPalette.dark
    }

    Rectangle {
        id: side
        width: 208
        height: root.height
        color: GalleryPalette.panel

        ListView {
            id: pageList
            anchors.fill: parent
            anchors.topMargin: 12
            anchors.bottomMargin: 64
            clip: true
            focus: true
            activeFocusOnTab: true
            keyNavigationWraps: true
            highlightMoveDuration: 0
            model: root.pages
            delegate: PageEntry {}
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Pages")
            Keys.onPressed: event => {
                if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
                    return
                root.showPage(event.key === Qt.Key_Home ? 0 : -1)
                event.accepted = true
            }
        }
        ThemeSwitch {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 16
            x: 20
            width: parent.width - 40
        }
        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: GalleryPalette.line
        }
    }

    GalleryText {
        id: heading
        anchors.left: side.right
        anchors.right: parent.right
        anchors.margins: 24
        y: 20
        text: root.page.title
        elide: Text.ElideRight
        font.pixelSize: 24
        font.bold: true
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Loader {
        anchors.fill: parent
        anchors.leftMargin: side.width
        anchors.topMargin: heading.y + heading.height
        source: root.page.source
    }
}
