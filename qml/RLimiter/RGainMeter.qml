import QtQuick
import TambleClient.Control 1.0

/*! Meter of a gain beside a plot, with its numbers. */
Item {
    id: root

    property alias reverse: meter.reverse
    property alias split: meter.split
    property alias value: meter.value
    property alias valueMin: meter.valueMin
    property alias valueMax: meter.valueMax
    property alias valueMinYellow: meter.valueMinYellow
    property alias valueMinRed: meter.valueMinRed
    property alias valueMaxYellow: meter.valueMaxYellow
    property alias valueMaxRed: meter.valueMaxRed
    property string label

    implicitWidth: numbers.x + numbers.width

    RMeter {
        id: meter
        objectName: "meter"
        height: root.height
        paddingTop: 0
        paddingBottom: 0
        // A gain moves as the processor does, both ways; the slow fall is for levels.
        currentValueDecreasePerSecond: meter.split ? 1e6 : 60
        Accessible.name: root.label
    }
    RAxisNumbering {
        id: numbers
        // Without anchors, which a page could mirror.
        x: meter.width + 4 * RThemeValues.unit
        height: meter.height
        width: 24 * RThemeValues.unit
        orientation: Qt.Vertical
        rightSided: true
        from: meter.reverse ? meter.valueMax : meter.valueMin
        to: meter.reverse ? meter.valueMin : meter.valueMax
        step: Math.abs(meter.valueMax - meter.valueMin) / 4
        unit: "dB"
    }
}
