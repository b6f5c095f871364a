import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Main window with the theme object and the style sheets that the theme word names. */
T.ApplicationWindow {
    id: root

    property string tambleStyleSheetDirectory: "qrc:/style/"
    property string tambleStyleSheetKey: "tamble"
    property string tambleStyleSheetTheme: theme.stylesheet
    property string appStyleSheetDirectory: "qrc:/style/"
    /*! Empty in an application without a sheet of its own. */
    property string appStyleSheetKey: "app"
    property string appStyleSheetTheme: theme.stylesheet

    /*! Makes the object that is installed as `theme`. */
    property alias themeComponent: selector.themeComponent
    property alias styleEngine: setup.engine
    property alias styleChecker: setup.checker
    property bool reportMissingKeys: true

    /*! Whether Ctrl with Plus, Minus and 0 changes the size of everything. */
    property bool zoomShortcuts: true
    /*! Refuses to close: the page decides when closeRequested is emitted. */
    property bool confirmClose: false
    /*! Covers the window with a veil that takes mouse, touch and keys. */
    property bool busy: false

    readonly property url tambleStyleSheet: root.sheet(root.tambleStyleSheetDirectory, root.tambleStyleSheetKey, root.tambleStyleSheetTheme)
    readonly property url appStyleSheet: root.sheet(root.appStyleSheetDirectory, root.appStyleSheetKey, root.appStyleSheetTheme)
    property bool complete: false

    signal styleException(string type, string message)
    signal closeRequested()

    /*! Shows the theme `word`: "light", "dark", "contrast-light" or "contrast-dark". */
    function setTheme(word: string) {
        theme.stylesheet = word
        root.loadSheets()
    }

    function sheet(directory: string, key: string, word: string): url {
        return key.length > 0 ? directory + key + "." + word + ".style" : ""
    }

    function loadSheets() {
        setup.engine.setStyleSheetSources(root.tambleStyleSheet, root.appStyleSheet)
    }

    /*! One theme word is in both names, which change one after the other; they are loaded once. Nothing is loaded
        before the setup is complete. */
    function sheetChanged() {
        if (root.complete)
            Qt.callLater(root.loadSheets) // qmllint disable type
        else
            root.loadSheets()
    }

    /*! Steps from where automatic sizing is. Limits keep the window usable. */
    function zoom(step: real) {
        const factor = Math.round((theme.dp(1) + step) * 10) / 10
        theme.setDpZoomFactor(Math.max(0.5, Math.min(3.0, factor)))
    }

    width: 1280
    height: 800
    minimumWidth: 800
    minimumHeight: 600
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM

    onTambleStyleSheetChanged: root.sheetChanged()
    onAppStyleSheetChanged: root.sheetChanged()
    onClosing: close => {
        close.accepted = !root.confirmClose
        root.closeRequested()
    }
    Component.onCompleted: root.complete = true

    background: Rectangle { // qmllint disable deferred-property-id
        id: ground

        RStyleSet.typeName: "RScreen2"

        property color ssBackground: ground.RStyleSet.props.background

        color: ground.ssBackground
    }

    // First, and with the component in place: whatever follows reads the theme.
    RThemeSelector {
        id: selector
        themeComponent: Component {
            RTheme {}
        }
    }
    RStyleEngineSetup {
        id: setup
        checker.active: root.reportMissingKeys
        engine.onException: (type, message) => root.styleException(type, message)
    }
    Shortcut {
        enabled: root.zoomShortcuts
        sequences: ["Ctrl++", "Ctrl+="]
        onActivated: root.zoom(0.1)
    }
    Shortcut {
        enabled: root.zoomShortcuts
        sequence: "Ctrl+-"
        onActivated: root.zoom(-0.1)
    }
    Shortcut {
        enabled: root.zoomShortcuts
        sequence: "Ctrl+0"
        onActivated: theme.setDpZoomFactor(0)
    }
    RBusyVeilLoader {
        busy: root.busy
    }
}
