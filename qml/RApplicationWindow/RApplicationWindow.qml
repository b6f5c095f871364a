import QtQuick
import TambleClient.Control 1.0

/*! Main window with the theme object and the style sheets that the theme word names.

    Keys: Ctrl with Plus and Minus changes the size of everything in steps of 0.1 from 0.5 to 3, Ctrl+0 goes back to the
    automatic size, unless `zoomShortcuts` is false. */
RApplicationWindowTemplate {
    id: root

    /*! Name of the module's sheet, directory + key + "." + theme + ".style": `tambleStyleSheetDirectory`, "qrc:/style/"
        until set, `tambleStyleSheetKey`, "tamble", and `tambleStyleSheetTheme`, the theme's `stylesheet`. */
    property alias tambleStyleSheetDirectory: tambleSheet.directory
    property alias tambleStyleSheetKey: tambleSheet.key
    property alias tambleStyleSheetTheme: tambleSheet.themeWord
    /*! Likewise of the application's own sheet, `appStyleSheetDirectory`, `appStyleSheetKey`, "app" until set and empty
        for no sheet, and `appStyleSheetTheme`. As long as none of the three is set, there need not be one. */
    property alias appStyleSheetDirectory: appSheet.directory
    property alias appStyleSheetKey: appSheet.key
    property alias appStyleSheetTheme: appSheet.themeWord

    /*! Makes the object that is installed as `theme`. */
    property alias themeComponent: selector.themeComponent
    /*! The window's style engine (`styleEngine`) and what reports missing keys (`styleChecker`). */
    property alias styleEngine: setup.engine
    property alias styleChecker: setup.checker
    /*! Whether keys that controls ask for in vain are reported. */
    property bool reportMissingKeys: true

    /*! Whether Ctrl with Plus, Minus and 0 changes the size of everything. */
    property bool zoomShortcuts: true
    /*! Refuses to close: the page decides when closeRequested is emitted; false by default. */
    property bool confirmClose: false
    /*! Covers the window with a veil that takes mouse, touch and keys. */
    property bool busy: false

    /*! The sheets in force: `tambleStyleSheet` of the module and `appStyleSheet` of the application, empty for
        none. */
    readonly property url tambleStyleSheet: tambleSheet.source
    readonly property url appStyleSheet: appSheet.source
    /*! Whether the window has been made. */
    property bool complete: false

    /*! The style engine reports a problem: its kind and a text for the user. */
    signal styleException(string type, string message)
    /*! The user closes the window, whether or not `confirmClose` refuses that. */
    signal closeRequested()

    /*! Shows the theme `word`: "light", "dark", "contrast-light" or "contrast-dark". */
    function setTheme(word: string) {
        theme.stylesheet = word
        root.loadSheets()
    }

    /*! Loads the sheets that are named at present. */
    function loadSheets() {
        if (appSheet.named)
            setup.engine.setStyleSheetSources(root.tambleStyleSheet, root.appStyleSheet)
        else
            setup.engine.defaultStyleSheetSource = root.tambleStyleSheet
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
    RSheetName {
        id: tambleSheet
        defaultKey: "tamble"
        defaultThemeWord: theme.stylesheet
    }
    RSheetName {
        id: appSheet
        defaultKey: "app"
        defaultThemeWord: theme.stylesheet
        optional: true
        onNamedChanged: root.sheetChanged()
    }
    RStyleEngineSetup {
        id: setup
        checker.active: root.reportMissingKeys
        engine.onException: (type, message) => root.styleException(type, message)
    }
    RWindowPalette {}
    RFocusReveal {
        settled: theme.dpLoadFlag
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
