import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The window of the sample client, one of whose views is the catalogue of controls. */
RApplicationWindow {
    id: root

    /*! Pages of the sample client and of the catalogue, as maps with key, title, source and icon. */
    required property var festivalPages
    required property var cataloguePages
    /*! The page on show, counted through both. */
    property int currentPage: 0
    /*! Size of everything in percent at the start; 0 for the theme's own. */
    property int startZoom: 0
    /*! Whether nothing fades, for pictures. */
    property bool still: false

    readonly property int pageCount: root.festivalPages.length + root.cataloguePages.length
    readonly property bool inCatalogue: root.currentPage >= root.festivalPages.length
    /*! The page of the catalogue to come back to. */
    property int lastCataloguePage: 0
    readonly property int cataloguePage: root.inCatalogue ? root.currentPage - root.festivalPages.length : root.lastCataloguePage
    readonly property FestivalPage page: views.currentItem as FestivalPage
    readonly property bool listening: root.page !== null && root.page.listening
    /*! Height of the window in which the whole page is seen without scrolling; 0 where it fits itself in. */
    readonly property real wholePageHeight: root.page && root.page.wholePageHeight > 0 ? views.y + root.page.wholePageHeight : 0
    /*! Whether the page is there, or cannot be shown; either may take a moment after it was chosen. */
    readonly property bool ready: !views.busy && (views.currentItem !== null || failure.opened)

    function turn(pages: int) {
        root.currentPage = (root.currentPage + pages + root.pageCount) % root.pageCount
    }

    /*! Shows a page of the sample client, or behind those the catalogue. */
    function show(index: int) {
        root.lastCataloguePage = root.cataloguePage
        root.currentPage = index < root.festivalPages.length ? index : index + root.lastCataloguePage
    }

    /*! To the page that is still there after another could not be shown. */
    function backToView() {
        const shown = root.festivalPages.findIndex(page => page.key === views.currentKey)
        if (views.currentItem)
            root.show(shown >= 0 ? shown : root.festivalPages.length)
    }

    visible: true
    title: qsTr("%1 - Festival").arg(root.inCatalogue ? root.cataloguePages[root.cataloguePage].title : root.festivalPages[root.currentPage].title)
    appStyleSheetDirectory: GalleryFiles.styleDirectory + "/"
    appStyleSheetKey: ""
    appStyleSheetTheme: "all"
    onStyleException: (type, message) => {
        if (!Festival.reports.includes(message))
            Festival.reports = [...Festival.reports, message]
    }

    Component.onCompleted: theme.setDpZoomFactor(root.startZoom / 100)

    Binding {
        target: GalleryAudio
        property: "running"
        value: root.listening && root.visibility !== Window.Hidden && root.visibility !== Window.Minimized
    }
    Connections {
        target: Festival

        function onThemeChosen(word) {
            root.setTheme(word)
        }
        function onDevicesAsked() {
            root.currentPage = 0
        }
        function onCatalogueAsked(page) {
            root.currentPage = root.festivalPages.length + page
        }
    }
    Binding {
        target: GalleryInstallation.history
        property: "place"
        value: views.currentKey
    }
    Connections {
        target: GalleryInstallation.history

        // What is undone is to be seen.
        function onConcerned(place) {
            const index = root.festivalPages.findIndex(page => page.key === place)
            if (index >= 0)
                root.currentPage = index
        }
    }
    EqualizerStore {
        id: mainEqualizer
        history: GalleryInstallation.history
        names: [qsTr("Main L"), qsTr("Main R")]
    }
    Binding {
        target: Festival
        property: "equalizer"
        value: mainEqualizer
    }
    Binding {
        target: Festival
        property: "cataloguePages"
        value: root.cataloguePages
    }
    Binding {
        target: Festival
        property: "cataloguePage"
        value: root.cataloguePage
    }
    HistoryShortcuts {
        enabled: !root.inCatalogue
        history: GalleryInstallation.history
    }
    Shortcut {
        sequences: ["Ctrl+PgDown", "Ctrl+Tab"]
        onActivated: root.turn(1)
    }
    Shortcut {
        sequences: ["Ctrl+PgUp", "Ctrl+Shift+Tab"]
        onActivated: root.turn(-1)
    }
    Shortcut {
        sequence: "Ctrl+T"
        onActivated: root.setTheme(Festival.nextTheme)
    }

    FestivalBar {
        id: bar
        width: root.width
        pages: [...root.festivalPages, { title: qsTr("Catalogue"), icon: "apps" }]
        currentIndex: Math.min(root.currentPage, root.festivalPages.length)
        onChosen: index => root.show(index)
        onAlarmsAsked: {
            root.currentPage = 0
            Festival.openAlarms()
        }
    }
    RViewContainer {
        id: views
        y: bar.height
        width: root.width
        height: root.height - y
        focus: true
        animated: !root.still
        // A page takes 50 to 170 ms at once; in the background, between frames, it would take seconds.
        asynchronous: false
        views: [...root.festivalPages, { key: "catalogue", title: qsTr("Catalogue"), source: Qt.resolvedUrl("shell/CatalogueView.qml") }]
        currentKey: root.inCatalogue ? "catalogue" : root.festivalPages[root.currentPage].key
        onViewFailed: (key, error) => {
            failure.title = views.views.find(view => view.key === key).title
            failure.detailedText = error
            failure.open()
            Qt.callLater(root.backToView)
        }
    }
    RMessageBox {
        id: failure
        text: qsTr("This page cannot be shown.")
        icon: RMessageBox.Critical
    }
}
