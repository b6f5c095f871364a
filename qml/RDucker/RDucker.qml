import QtQuick
import "../Shared"
import TambleClient.Control 1.0
import "../RLimiter"

/*! Curve of a ducker with handles for its threshold and for how far it lowers the signal. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias duckerBypassed: calculator.duckerBypassed
    property alias threshold: calculator.threshold
    property alias thresholdMin: calculator.thresholdMin
    property alias thresholdMax: calculator.thresholdMax
    property alias duckingLevel: calculator.duckingLevel
    property alias duckingLevelMin: calculator.duckingLevelMin
    property alias duckingLevelMax: calculator.duckingLevelMax
    readonly property alias values: calculator.values
    /*! Where a double click on a handle leads, in dB, undefined for nowhere: `defaultThreshold` and
        `defaultDuckingLevel`. */
    property var defaultThreshold: 0
    property var defaultDuckingLevel: 20

    /*! The user changes the threshold (`thresholdEdited`) and has finished (`thresholdCommitted`), in dB. */
    signal thresholdEdited(real value)
    signal thresholdCommitted(real value)
    /*! The user changes the attenuation (`duckingLevelEdited`) and has finished (`duckingLevelCommitted`), in dB. */
    signal duckingLevelEdited(real value)
    signal duckingLevelCommitted(real value)

    title: qsTr("Ducker")
    xFrom: root.thresholdMin
    xTo: root.thresholdMax
    active: root.calculatorActive
    bypassed: root.duckerBypassed
    points: root.values

    RDuckerCalculator {
        id: calculator
        thresholdMin: -60
        thresholdMax: 20
        duckingLevel: 20
        duckingLevelMin: 0
        duckingLevelMax: 60
        duckerBypassed: false
    }
    RParameterHandle {
        plot: root
        target: calculator
        name: "threshold"
        label: qsTr("Threshold")
        unit: root.xUnit
        defaultValue: root.defaultThreshold
        yEnabled: false
        xValue: root.threshold
        yValue: root.threshold
        onEdited: value => root.thresholdEdited(value)
        onCommitted: value => root.thresholdCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return root.thresholdMax - y
        }

        plot: root
        target: calculator
        name: "duckingLevel"
        label: qsTr("Ducking")
        defaultValue: root.defaultDuckingLevel
        xEnabled: false
        xValue: root.thresholdMax
        yValue: root.thresholdMax - root.duckingLevel
        onEdited: value => root.duckingLevelEdited(value)
        onCommitted: value => root.duckingLevelCommitted(value)
    }
}
