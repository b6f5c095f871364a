import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! Faders of 248 pixels: 200 pixels of travel for 100 dB, 2 pixels for 1 dB. */
ThemedTestCase {
    id: root

    readonly property Component faderComponent: Component {
        RFader {
            property var log: []

            height: 248
            from: -90
            to: 10
            value: -20
            label: "Level"
            settleTime: 50
        }
    }

    function makeDevice(): var {
        return make("QtObject { property real level: -20; property real minimum: 0; property real maximum: 0 }")
    }

    function makeFader(properties: var): var {
        const fader = createTemporaryObject(root.faderComponent, root, properties)
        fader.log = logged(fader, { valueEdited: "edited", valueCommitted: "committed", editCanceled: "canceled" })
        waitForRendering(fader)
        return fader
    }

    /*! Pixel of the fader's middle line, for a fader standing upright. */
    function press(fader: RFader, y: real) {
        mousePress(fader, 28, y)
    }
}
