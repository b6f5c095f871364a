import QtQuick
import QtTest
import TambleClient.Control 1.0

/*! What controls do before a page has installed a theme, and with an object called `theme` that is none. */
TestCase {
    id: root
    name: "WithoutTheme"
    when: windowShown
    visible: true

    Component {
        id: foreignComponent
        QtObject {
            property string stylesheet: "dark"
            property int fontSizeM: 20
        }
    }
    Component {
        id: themeComponent
        RTheme {
            hoverEnabled: true
        }
    }
    Component {
        id: selectorComponent
        RThemeSelector {}
    }
    Component {
        id: buttonComponent
        RButton {
            text: "Mute"
        }
    }

    function init() {
        failOnWarning(/.*/)
    }

    function look(button: RButton): var {
        return [button.width, button.height, button.fontSize, button.textControl.font.family]
    }

    // An engine has one theme, so these are steps of one test.
    function test_defaultsStandIn() {
        const button = createTemporaryObject(buttonComponent, root)
        compare(look(button), [144, 32, 12, "Brack Office Sans"])

        const selector = createTemporaryObject(selectorComponent, root)
        ignoreWarning(/context property "theme" lacks dp, hoverEnabled, nativeRendering, fontFamily, fontSizeXXS, .*RTheme/)
        selector.themeComponent = foreignComponent
        compare(look(button), [144, 32, 20, "Brack Office Sans"])
        theme.fontSizeM = 21
        compare(look(button), [144, 32, 21, "Brack Office Sans"], "what is there counts, and is told of once")

        selector.themeComponent = themeComponent
        theme.setDpZoomFactor(2)
        compare(look(button), [288, 64, 24, "Brack Office Sans"])
        compare(button.hoverEnabled, true)
    }
}
