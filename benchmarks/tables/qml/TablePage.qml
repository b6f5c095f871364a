import QtQuick
import TambleClient.Control 1.0

/*! A table that fills a page, to be scrolled by `contentY`. */
TableView {
    id: root

    width: 1200
    height: 800
    clip: true
    columnSpacing: 1
    rowSpacing: 1
    reuseItems: true
    columnWidthProvider: () => 144
    rowHeightProvider: () => 32

    RThemeSelector {
        themeComponent: Component {
            RTheme {}
        }
    }
    RStyleEngineSetup {
        engine.defaultStyleSheetSource: "qrc:/style/tamble.dark.style"
    }
}
