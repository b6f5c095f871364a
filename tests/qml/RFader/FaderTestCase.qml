import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! Faders of 248 pixels: 200 pixels of travel for 100 dB, 2 pixels for 1 dB. */
ThemedTestCase {
    id: root

    component LoggedFader: RFader {
        id: fader

        property var log: []

        height: 248
        from: -90
        to: 10
        value: -20
        label: "Level"
        settleTime: 50
        onValueEdited: level => fader.log.push("edited " + level)
        onValueCommitted: level => fader.log.push("committed " + level)
        onEditCanceled: fader.log.push("canceled")
    }
    readonly property Component faderComponent: Component {
        LoggedFader {}
    }
    readonly property Component deviceComponent: Component {
        QtObject {
            property real level: -20
            property real minimum: 0
            property real maximum: 0
        }
    }

    function makeFader(body: var): LoggedFader {
        const fader = createTemporaryObject(root.faderComponent, root, body)
        waitForRendering(fader)
        return fader
    }

    /*! Pixel of the fader's middle line, for a fader standing upright. */
    function press(fader: RFader, y: real) {
        mousePress(fader, 28, y)
    }
}
