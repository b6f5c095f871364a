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

    /*! An object from the text of its declaration; it goes with the test. */
    function make(body: string): var {
        return createTemporaryQmlObject("import QtQuick\nimport TambleClient.Control 1.0\n" + body, root)
    }

    function spyOn(target: var, signalName: string): SignalSpy {
        return createTemporaryObject(spyComponent, root, { target: target, signalName: signalName })
    }

    /*! What `target` signals from now on, as texts of the word for that signal and its arguments: "edited -5". */
    function logged(target: var, words: var): var {
        const log = []
        for (const name in words)
            target[name].connect((...values) => log.push([words[name], ...values].join(" ")))
        return log
    }

    function cleanup() {
        root.sheet = "dark"
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
    Component {
        id: spyComponent
        SignalSpy {}
    }
}
