import QtQuick
import QtTest
import TambleClient.Control 1.0

/*! Test case in a window with a theme and a built-in sheet. Every warning is a failure, and missing keys are warnings. */
TestCase {
    id: root

    property string sheet: "dark"
    readonly property QtObject styleEngine: setup.engine

    function init() {
        failOnWarning(/.*/)
    }

    when: windowShown
    visible: true
    width: 400
    height: 300

    RThemeSelector {
        themeComponent: Component {
            // Which pointing devices there are depends on what ran before.
            RTheme {
                hoverEnabled: true
            }
        }
    }
    RStyleEngineSetup {
        id: setup
        engine.defaultStyleSheetSource: "qrc:/style/tamble." + root.sheet + ".style"
    }
}
