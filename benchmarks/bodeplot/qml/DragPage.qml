import QtQuick
import TambleClient.Control 1.0

/*! A plot with `count` bands over the audible range. What the user drags is written to the bands, as a device confirms
    it. */
Item {
    id: root

    property int count: 8
    /*! Edits that were told. */
    property int edits: 0

    /*! Where the pointer takes hold of a handle, in pixels of the page. */
    function grip(index: int): point {
        // qmllint disable
        const place = curve.filterPointModels[index].point
        // qmllint enable
        return curve.mapToItem(root, place.x * curve.width, place.y * curve.height - 12 * RThemeValues.unit)
    }

    /*! Moves a handle so that its grip is at a place of the page. */
    function move(index: int, place: point) {
        const dot = curve.mapFromItem(root, place.x, place.y + 12 * RThemeValues.unit)
        curve.onUserMoveFilterPoint(index, Qt.point(dot.x / curve.width, dot.y / curve.height))
    }

    width: 1200
    height: 400

    RThemeSelector {
        themeComponent: Component {
            RTheme {}
        }
    }
    RStyleEngineSetup {
        engine.defaultStyleSheetSource: "qrc:/style/tamble.dark.style"
    }
    Component {
        id: band
        RBodeplotEqFilter {}
    }
    RBodeplot {
        anchors.fill: parent

        RBodeplotCurve {
            id: curve
            onUserChangedFilterPoint: (index, type, frequency, gain) => {
                ++root.edits
                calculationItems[index].freq = frequency
                calculationItems[index].gain = gain
            }
            // qmllint disable
            Component.onCompleted: calculationItems = Array.from({
                length: root.count
            }, (_, i) => band.createObject(root, {
                freq: 25 * Math.pow(720, i / (root.count - 1)),
                gain: i * 7 % 13 - 6,
                quality: 0.7 + i % 5,
                label: i + 1
            }))
            // qmllint enable
        }
    }
}
